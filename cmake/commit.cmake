# Z7X_COMMIT: the commit that is built, "unknown" outside a checkout. Looked up anew when it has changed.
set(Z7X_COMMIT unknown)
find_package(Git QUIET)
if(GIT_FOUND AND EXISTS ${PROJECT_SOURCE_DIR}/.git)
    function(z7x_ask_git variable)
        execute_process(COMMAND ${GIT_EXECUTABLE} -C ${PROJECT_SOURCE_DIR} ${ARGN}
            OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE status)
        if(status EQUAL 0)
            set(${variable} "${answer}" PARENT_SCOPE)
        endif()
    endfunction()
    # Of a length that does not depend on what else the checkout holds.
    z7x_ask_git(Z7X_COMMIT rev-parse --short=12 HEAD)
    z7x_ask_git(log rev-parse --path-format=absolute --git-path logs/HEAD)
    if(EXISTS "${log}")
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${log}")
    endif()
endif()

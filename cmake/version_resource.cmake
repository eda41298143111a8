# z7x_version_resource(TARGET DESCRIPTION): the file says what it is and of which version, in its properties and to
# whoever asks with GetFileVersionInfo. Elsewhere than on Windows there is no such thing, and nothing happens.
function(z7x_version_resource target description)
    if(NOT WIN32)
        return()
    endif()
    string(REPLACE "." "," version_numbers "${PROJECT_VERSION}.0")
    set(file_type "$<IF:$<STREQUAL:$<TARGET_PROPERTY:${target},TYPE>,EXECUTABLE>,VFT_APP,VFT_DLL>")
    file(READ ${PROJECT_SOURCE_DIR}/cmake/version.rc.in template)
    string(CONFIGURE "${template}" resource @ONLY)
    set(file ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
    file(GENERATE OUTPUT ${file} CONTENT "${resource}")
    target_sources(${target} PRIVATE ${file})
endfunction()

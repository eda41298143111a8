# z7x_provider(TARGET NAME FOLDER SOURCE ENTRIES ...): a library FOLDER/NAME.DLL of one source file, from which nothing
# but the entries is visible.
function(z7x_provider target name folder source)
    add_library(${target} MODULE ${source})
    target_link_libraries(${target} PRIVATE z7x_headers)
    set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${name} SUFFIX ".DLL"
                          LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin/${folder})
    if(WIN32)
        # The decorated names are found by the plain ones.
        string(JOIN "\n    " entries ${ARGN})
        file(CONFIGURE OUTPUT ${target}.def CONTENT "LIBRARY ${name}.DLL\nEXPORTS\n    ${entries}\n")
        target_link_options(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.def LINKER:--enable-stdcall-fixup
            LINKER:--exclude-all-symbols)
        return()
    endif()
    string(JOIN "; " entries ${ARGN})
    file(CONFIGURE OUTPUT ${target}.map CONTENT "{ global: ${entries}; local: *; };\n")
    target_link_options(${target} PRIVATE -Wl,--version-script=${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
endfunction()

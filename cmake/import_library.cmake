# z7x_import_library(TARGET NAME DEFINITIONS): an import library libNAME.dll.a of a definition file whose names carry the
# decoration that compilers ask for; what is asked of the library at run time are the plain names, or the ordinals where
# the file says NONAME. The linker's own import libraries know one kind of name only.
find_program(Z7X_DLLTOOL i686-w64-mingw32-dlltool REQUIRED)

function(z7x_import_library target name definitions)
    set(folder ${CMAKE_BINARY_DIR}/lib)
    set(file ${folder}/lib${name}.dll.a)
    file(MAKE_DIRECTORY ${folder})
    # From inside the folder: what the tool is told of where to write becomes names in the file.
    add_custom_command(
        OUTPUT ${file}
        COMMAND ${Z7X_DLLTOOL} --kill-at --input-def ${definitions} --output-lib lib${name}.dll.a
        WORKING_DIRECTORY ${folder}
        DEPENDS ${definitions}
        COMMENT "Making the import library of ${name}"
        VERBATIM)
    add_custom_target(${target}_file ALL DEPENDS ${file})
    add_library(${target} STATIC IMPORTED GLOBAL)
    set_target_properties(${target} PROPERTIES IMPORTED_LOCATION ${file})
    add_dependencies(${target} ${target}_file)
endfunction()

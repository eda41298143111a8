# Run by cpack once all files of the package stand in a folder.
set(package ${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.zip)
execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/../tools/zip_folder.py ${CPACK_TEMPORARY_DIRECTORY} ${package}
    COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${package})

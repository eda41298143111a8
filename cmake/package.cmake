# The package for Windows: a ZIP that is unzipped and used. The library, the import libraries and definition files, the
# headers, the guide.
install(TARGETS Z7XFRPCS RUNTIME DESTINATION bin)
install(FILES ${CMAKE_BINARY_DIR}/lib/libZ7XFRPCS.dll.a ${CMAKE_BINARY_DIR}/lib/libZHSTSERV.dll.a
    ${PROJECT_SOURCE_DIR}/src/entry/Z7XFRPCS.def ${PROJECT_SOURCE_DIR}/workbench/emulator/ZHSTSERV.def
    DESTINATION lib)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/Z7XFRPCS DESTINATION include)
install(FILES ${PROJECT_SOURCE_DIR}/docs/integration.md DESTINATION share/doc/Z7XFRPCS)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME Z7XFRPCS)
set(CPACK_SYSTEM_NAME win32)
set(CPACK_STRIP_FILES ON)
include(CPack)

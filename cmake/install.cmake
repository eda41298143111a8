# What an integrator gets: the library, and on Windows the import libraries and definition files, the headers, the guide.
install(TARGETS Z7XFRPCS RUNTIME DESTINATION bin LIBRARY DESTINATION lib)
if(WIN32)
    install(FILES ${CMAKE_BINARY_DIR}/lib/libZ7XFRPCS.dll.a ${CMAKE_BINARY_DIR}/lib/libZHSTSERV.dll.a
        ${PROJECT_SOURCE_DIR}/src/client/Z7XFRPCS.def ${PROJECT_SOURCE_DIR}/workbench/emulator/ZHSTSERV.def
        DESTINATION lib)
endif()
set(source ${PROJECT_SOURCE_DIR}/src)
install(FILES ${source}/client/exports.h DESTINATION include/Z7XFRPCS/client)
install(FILES ${source}/provider/provider_call.h DESTINATION include/Z7XFRPCS/provider)
install(FILES ${source}/platform/${Z7X_PLATFORM}/calling_convention.h DESTINATION include/Z7XFRPCS)
foreach(header IN ITEMS types runtime session objects dialogs text_display conversion setting_ids setting_values)
    install(FILES ${source}/host/${header}.h DESTINATION include/Z7XFRPCS/host)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/docs/integration.md DESTINATION share/doc/Z7XFRPCS)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME Z7XFRPCS)
set(CPACK_STRIP_FILES ON)
if(WIN32)
    set(CPACK_SYSTEM_NAME win32)
endif()
include(CPack)

# What `cmake --install` puts in place on a system that the library is developed on. The Windows build has package.cmake.
install(TARGETS Z7XFRPCS LIBRARY DESTINATION lib)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/Z7XFRPCS DESTINATION include)
install(FILES ${PROJECT_SOURCE_DIR}/docs/integration.md DESTINATION share/doc/Z7XFRPCS)

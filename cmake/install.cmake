# What `cmake --install` puts in place on a system that the library is developed on. The Windows build has package.cmake.

# Everything that runs stands in one folder, as in the build, so that the tree may be moved: program, stand-in and
# providers look for what they load beside themselves. The program is found by its name in bin/.
set(home lib/z7xfer)
install(TARGETS z7xfer Z7XFRPCS z7xemulator z7xpc RUNTIME DESTINATION ${home} LIBRARY DESTINATION ${home})
install(TARGETS looking_provider LIBRARY DESTINATION ${home}/looking)
install(FILES ${CMAKE_BINARY_DIR}/bin/codepages.dat DESTINATION ${home})
if(TARGET z7xas400)
    install(TARGETS E32TFW E32APPC ZEHNTFW ZTFWAPPC AS4XFER LIBRARY DESTINATION ${home}/providers)
    install(FILES ${CMAKE_BINARY_DIR}/bin/sample.db DESTINATION ${home})
endif()
install(CODE "
    set(programs \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
    file(MAKE_DIRECTORY \"\${programs}\")
    file(CREATE_LINK ../${home}/z7xfer \"\${programs}/z7xfer\" SYMBOLIC)")

install(FILES ${CMAKE_BINARY_DIR}/documents/z7xfer.1 DESTINATION share/man/man1)
install(FILES ${CMAKE_BINARY_DIR}/documents/z7xfer DESTINATION share/bash-completion/completions)
install(FILES ${CMAKE_BINARY_DIR}/documents/_z7xfer DESTINATION share/zsh/site-functions)

# What an integrator builds against.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/Z7XFRPCS DESTINATION include)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION share/doc/Z7XFRPCS FILES_MATCHING PATTERN "*.md"
    PATTERN architecture.md EXCLUDE PATTERN decisions.md EXCLUDE)

# The package for Windows: a ZIP that is unzipped and used. What is in it, by folder, and nothing that tells when or where
# it was made: from two builds of the same sources comes the same file (tools/same_package.sh).

# --- bin: everything that runs, and what it reads -----------------------------------------------------------------

install(TARGETS Z7XFRPCS z7xemulator z7xfer RUNTIME DESTINATION bin)
install(TARGETS looking_provider LIBRARY DESTINATION bin/looking)
install(FILES ${CMAKE_BINARY_DIR}/bin/codepages.dat DESTINATION bin)
if(TARGET z7xas400)
    install(TARGETS E32TFW E32APPC ZEHNTFW ZTFWAPPC AS4XFER LIBRARY DESTINATION bin/providers)
    install(FILES ${CMAKE_BINARY_DIR}/bin/sample.db DESTINATION bin)
endif()

# --- lib, include, examples: what others build with ---------------------------------------------------------------

install(FILES ${CMAKE_BINARY_DIR}/lib/libZ7XFRPCS.dll.a ${CMAKE_BINARY_DIR}/lib/libZHSTSERV.dll.a ${Z7X_SERVICE_NAMES}
    DESTINATION lib)
# The decorated names by ordinal are what the import libraries of all compilers can be made of.
install(FILES ${PROJECT_SOURCE_DIR}/src/entry/import_library.def DESTINATION lib RENAME Z7XFRPCS.def)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/Z7XFRPCS DESTINATION include)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION . PATTERN CMakeLists.txt EXCLUDE)

# --- doc: guide and reference, without what is about the house itself ---------------------------------------------

set(docs ${PROJECT_SOURCE_DIR}/docs)
file(GLOB_RECURSE pages CONFIGURE_DEPENDS RELATIVE ${docs} ${docs}/*.md)
list(REMOVE_ITEM pages architecture.md decisions.md)
# The guide is the first.
list(REMOVE_ITEM pages integration.md)
list(PREPEND pages integration.md)
list(TRANSFORM pages PREPEND ${docs}/ OUTPUT_VARIABLE sources)
list(TRANSFORM pages REPLACE "^(.*)\\.md$" "${CMAKE_BINARY_DIR}/doc/\\1.html" OUTPUT_VARIABLE html_pages)
add_custom_command(
    OUTPUT ${html_pages}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/doc
    COMMAND ${PROJECT_SOURCE_DIR}/tools/html_pages.py ${CMAKE_BINARY_DIR}/doc ${docs} ${pages}
    DEPENDS ${sources} ${PROJECT_SOURCE_DIR}/tools/html_pages.py
    COMMENT "Turning guide and reference into HTML"
    VERBATIM)
add_custom_target(html_pages ALL DEPENDS ${html_pages})
install(DIRECTORY ${CMAKE_BINARY_DIR}/doc DESTINATION .)

# --- What is where, and whose work is in it -----------------------------------------------------------------------

configure_file(cmake/package_readme.txt ${CMAKE_BINARY_DIR}/README.txt NEWLINE_STYLE CRLF)
install(FILES ${CMAKE_BINARY_DIR}/README.txt DESTINATION .)
foreach(work IN ITEMS libcli11-dev libicu-dev libsqlite3-dev mingw-w64-i686-dev gcc-mingw-w64-base)
    install(FILES /usr/share/doc/${work}/copyright DESTINATION licences RENAME ${work}.txt OPTIONAL)
endforeach()

# --- The file -----------------------------------------------------------------------------------------------------

set(CPACK_GENERATOR External)
set(CPACK_EXTERNAL_ENABLE_STAGING ON)
set(CPACK_EXTERNAL_PACKAGE_SCRIPT ${PROJECT_SOURCE_DIR}/cmake/zip_package.cmake)
set(CPACK_PACKAGE_NAME Z7XFRPCS)
set(CPACK_SYSTEM_NAME win32)
include(CPack)

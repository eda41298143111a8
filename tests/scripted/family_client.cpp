#include "scripted/dispatch.h"

// The three families whose entries take a client handle: FAMILY and the entries' names come from the build. The
// definitions WITHOUT_REQUEST, WITHOUT_NEW, WITHOUT_DELETE and WITHOUT_GET make incomplete variants.
#define TEXT_OF(name) #name
#define NAME_OF(name) TEXT_OF(name)

extern "C" {
#ifndef WITHOUT_REQUEST
SCRIPTED_EXPORT std::uint32_t ZHST_CALL REQUEST_ENTRY(std::uint32_t client, std::uint32_t* conversation,
                                                      std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                                      std::uint32_t length, const char* designation,
                                                      std::uint32_t reserved, void** data, std::uint32_t* dataLength,
                                                      std::uint32_t* detail) {
    return scripted::request({scripted::Family::FAMILY, client}, {conversation, function, buffer, bufferSize, length,
                                                                  designation, reserved, data, dataLength, detail});
}
#endif
#ifndef WITHOUT_NEW
SCRIPTED_EXPORT std::uint32_t ZHST_CALL NEW_ENTRY(std::uint32_t session, std::uint32_t window) {
    return scripted::newClient(NAME_OF(NEW_ENTRY), session, window);
}
#endif
#ifndef WITHOUT_DELETE
SCRIPTED_EXPORT void ZHST_CALL DELETE_ENTRY(std::uint32_t client) {
    scripted::deleteClient(NAME_OF(DELETE_ENTRY), client);
}
#endif
#if defined(GET_ENTRY) && !defined(WITHOUT_GET)
SCRIPTED_EXPORT std::uint32_t ZHST_CALL GET_ENTRY(std::uint32_t session) { return scripted::findClient(session); }
#endif
}

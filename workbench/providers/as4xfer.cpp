// The AS/400 client: binary options, file names as qualifiers.
#include "conversations.h"

namespace {

providers::Clients& clients() {
    static providers::Clients all(as400::Dialect::Binary);
    return all;
}

}  // namespace

extern "C" {

ZHST_EXPORT std::uint32_t ZHST_CALL newAS4XFERCLIENT(std::uint32_t session, std::uint32_t) {
    return clients().create(session);
}

ZHST_EXPORT void ZHST_CALL deleteZAS4XFERCLIENT(std::uint32_t client) { clients().destroy(client); }

ZHST_EXPORT std::uint32_t ZHST_CALL getAS4XFERCLIENT(std::uint32_t session) { return clients().ofSession(session); }

ZHST_EXPORT std::uint32_t ZHST_CALL as400Request(std::uint32_t client, std::uint32_t* conversation,
                                                 std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                                 std::uint32_t length, const char*, std::uint32_t, void** data,
                                                 std::uint32_t* dataLength, std::uint32_t* detail) {
    return clients().perform(client, {conversation, function, buffer, bufferSize, length, data, dataLength, detail});
}
}

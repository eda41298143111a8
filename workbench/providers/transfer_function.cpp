// The emulator's transfer function. Its two libraries differ in the names NEW_CLIENT and DELETE_CLIENT stand for.
#include "conversations.h"

namespace {

providers::Clients& clients() {
    static providers::Clients all(as400::Dialect::Text);
    return all;
}

}  // namespace

extern "C" {

ZHST_EXPORT std::uint32_t ZHST_CALL NEW_CLIENT(std::uint32_t session, std::uint32_t) {
    return clients().create(session);
}

ZHST_EXPORT void ZHST_CALL DELETE_CLIENT(std::uint32_t client) { clients().destroy(client); }

ZHST_EXPORT std::uint32_t ZHST_CALL zehnRequestor(std::uint32_t client, std::uint32_t* conversation,
                                                  std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                                  std::uint32_t length, const char*, std::uint32_t, void** data,
                                                  std::uint32_t* dataLength, std::uint32_t* detail) {
    return clients().perform(client, {conversation, function, buffer, bufferSize, length, data, dataLength, detail});
}
}

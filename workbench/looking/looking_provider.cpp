// A provider that asks no host: it hands every call to the program that has loaded it too, and so lets the transfer
// library run against whatever that program answers.
#include "looking/looking_provider.h"

#include <cstdint>

namespace {

TfRequestEntry answering = nullptr;

}  // namespace

extern "C" {

ZHST_EXPORT void ZHST_CALL setLookingHost(TfRequestEntry host) { answering = host; }

ZHST_EXPORT std::uint32_t ZHST_CALL newZEHNTFWCLIENT(std::uint32_t, std::uint32_t) { return answering ? 1 : 0; }

ZHST_EXPORT void ZHST_CALL deleteZEHNTFWCLIENT(std::uint32_t) {}

ZHST_EXPORT std::uint32_t ZHST_CALL zehnRequestor(std::uint32_t client, std::uint32_t* conversation,
                                                  std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                                  std::uint32_t length, const char* designation, std::uint32_t reserved,
                                                  void** data, std::uint32_t* dataLength, std::uint32_t* detail) {
    return answering(client, conversation, function, buffer, bufferSize, length, designation, reserved, data,
                     dataLength, detail);
}
}

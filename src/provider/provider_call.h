#pragma once

#include <cstdint>

#include "calling_convention.h"

// The call into a transfer-function provider, as the library makes it and a provider receives it. Handles and numbers
// are 32 bits; addresses have the width of the machine; every entry uses ZHST_CALL and is exported under its plain
// name.
//
//   window          the session's window (EHNTF_STF only)
//   yield           to be called while waiting, so that the user can cancel (EHNTF_STF only)
//   client          what the provider's constructor gave (the other entries)
//   conversation    the provider's own handle, kept by the library between calls; 0 = none; read and updated
//   function        one of the codes below
//   buffer          the shared buffer: requests and records travel in it, both ways
//   bufferSize      4096
//   length          bytes of request or record in the buffer, else 0
//   designation     "SYSTEM(name    )" or null
//   reserved        0
//   data            out: address of what the provider returns, valid until the next call. Records and record counts
//                   stand in the shared buffer; field descriptions and host messages wherever this points
//   dataLength      out: length of that
//   detail          out: the low 16 bits are the detail code
//
// The low 16 bits of the result are the return code.
namespace provider {

inline constexpr std::uint32_t BufferSize = 4096;

enum Function : std::uint32_t {
    TF_SEND_REQUEST = 1,
    TF_GET_FIELD = 2,
    TF_GET_DATA = 3,
    TF_END_REQUEST = 4,
    TF_RESET = 5,
    TF_PUT_DATA = 6,
    TF_END_DATA = 7,
};

enum ReturnCode : std::uint16_t {
    Success = 0,
    TargetExists = 0x0400,  // with a host message, after a send request
    NoMoreData = 0x1FFF,
    HostMessage = 0x3000,
    HostMessageInstead = 0x3100,
    Completed = 0x5057,
    FailedSilently = 0x7101,
    NotStarted = 0x9999,
};

using YieldCallback = void(ZHST_CALL*)();

using StfEntry = std::uint32_t(ZHST_CALL*)(std::uint32_t window, YieldCallback yield, std::uint32_t* conversation,
                                           std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                           std::uint32_t length, const char* designation, std::uint32_t reserved,
                                           void** data, std::uint32_t* dataLength, std::uint32_t* detail);
using RequestEntry = std::uint32_t(ZHST_CALL*)(std::uint32_t client, std::uint32_t* conversation,
                                               std::uint32_t function, void* buffer, std::uint32_t bufferSize,
                                               std::uint32_t length, const char* designation, std::uint32_t reserved,
                                               void** data, std::uint32_t* dataLength, std::uint32_t* detail);
using StfCleanupEntry = void(ZHST_CALL*)();
// (session, window): the client handle, 0 = failure.
using NewClientEntry = std::uint32_t(ZHST_CALL*)(std::uint32_t session, std::uint32_t window);
using DeleteClientEntry = void(ZHST_CALL*)(std::uint32_t client);
using GetClientEntry = std::uint32_t(ZHST_CALL*)(std::uint32_t session);
// Non-zero when the router runs.
using IsRouterLoadedEntry = std::uint32_t(ZHST_CALL*)(std::uint32_t session);

}  // namespace provider

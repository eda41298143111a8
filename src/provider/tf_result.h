#pragma once

#include <cstddef>
#include <cstdint>

#include "Z7XFRPCS/provider.h"

namespace provider {

// Bytes of the buffer that is shared with the provider, and the most that one exchange carries.
inline constexpr std::uint32_t BufferSize = TF_BUFFER_SIZE;

// Result of one exchange with the provider. `data` is where the provider left it, in its own memory or in the shared
// buffer, valid until the next exchange; its length is the provider's word and not yet checked
// (TransferFunctionSession::returned gives what may be read).
struct TfResult {
    std::uint16_t returnCode = 0;
    std::uint16_t detailCode = 0;
    std::uint32_t dataLength = 0;
    void* data = nullptr;
};
static_assert(sizeof(void*) != 4 || sizeof(TfResult) == 12);
static_assert(offsetof(TfResult, detailCode) == 2 && offsetof(TfResult, dataLength) == 4);
static_assert(offsetof(TfResult, data) == 8);

}  // namespace provider

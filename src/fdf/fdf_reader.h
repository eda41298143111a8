#pragma once

#include <cstdint>

#include "client/transfer_context.h"

namespace fdf {

// Room for the field names of a description, without their terminator.
inline constexpr std::uint32_t NameListCapacity = 2816;

// Reads the PC file description of a transfer to the host. On success `names` (`capacity` + 1 bytes) holds the field
// names, separated by commas, and the snapshot has the description's file type and options. On failure a message has
// been shown, or the file object has told the user, and the snapshot has what the lines before the failure set.
bool readFdf(const client::TransferContext& context, const char* pcFileName, char* names, std::uint32_t capacity);

}  // namespace fdf

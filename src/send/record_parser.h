#pragma once

#include <cstdint>

#include "receive/record_converter.h"

namespace send {

// Converts the PC record of `recordLength` bytes at the start of the shared buffer into the host record, in place, by
// the send file type. The converter's hostRecord and fieldBuffer have the host record's length. `recordNumber` is for
// the user. False ends the send.
bool convertRecord(receive::RecordConverter& converter, std::uint32_t recordLength, std::uint32_t recordNumber);

}  // namespace send

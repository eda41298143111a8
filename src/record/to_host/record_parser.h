#pragma once

#include <cstdint>

#include "record/record_converter.h"

namespace record::to_host {

// Converts the PC record of `recordLength` bytes at the start of the shared buffer into the host record, in place, by
// the send file type. The converter's hostRecord and fieldBuffer have the host record's length. `recordNumber` is for
// the user. False ends the send.
bool convertRecord(record::RecordConverter& converter, std::uint32_t recordLength, std::uint32_t recordNumber);

}  // namespace record::to_host

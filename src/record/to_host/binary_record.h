#pragma once

#include <cstdint>

#include "record/record_converter.h"

namespace record::to_host {

// Turns a BasicRandom record at the start of the shared buffer into the host record, in place: the same fields at the
// same positions and lengths. Binary: bytes reversed. Zoned: F0 plus the digit, the last D0 plus the digit when its
// zone is B or D. Packed: the sign nibble becomes D when it is B or D, F otherwise. Hexadecimal: unchanged. False when
// a byte is no digit, which is reported with both numbers, or the code-page conversion fails.
bool convertBinaryRecord(record::RecordConverter& converter, std::uint32_t recordNumber);

}  // namespace record::to_host

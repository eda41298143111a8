#pragma once

#include <cstdint>
#include <span>

#include "record/host_layout.h"
#include "record/outcome.h"
#include "text/code_page_state.h"

namespace record::to_host {

// Builds the host record of a BasicRandom record: the same fields at the same positions and lengths. Binary: bytes
// reversed. Zoned: F0 plus the digit, the last D0 plus the digit when its zone is B or D. Packed: the sign nibble
// becomes D when it is B or D, F otherwise. Hexadecimal: unchanged. `record` is as long as `hostRecord`; `length`
// becomes the bytes that were built.
ConversionResult convertBinaryRecord(const HostLayout& layout, const text::CodePageState& codePage, const char* record,
                                     std::span<char> hostRecord, std::uint32_t& length);

}  // namespace record::to_host

#pragma once

#include <cstdint>
#include <string_view>

#include "record/host_layout.h"
#include "record/outcome.h"
#include "services/owned.h"
#include "text/code_page_state.h"

namespace record::to_pc {

// A BasicRandom record: the host record's fields at the same positions and lengths in the PC's number forms. `work` is
// grown to hold the `length` bytes of the record.
//
// Binary: bytes reversed. Zoned: 0x30 plus the digit, the last 0xB0 plus the digit when negative. Packed: the sign
// nibble becomes 0xB when negative and 0x3 otherwise. Hexadecimal: unchanged.
ConversionResult toBinaryRecord(const HostLayout& layout, const text::CodePageState& codePage,
                                std::string_view hostRecord, services::OwnedBytes& work, std::uint32_t& length);

}  // namespace record::to_pc

#pragma once

#include <cstdint>

#include "scripted/script.h"

namespace bench {

// What z7xscript is to answer for a host file of `count` records of 84 bytes: zoned 6.0, character 25, 20, 2 and 10,
// binary 4, packed 7.2 and 11.2, zoned 5.3, hexadecimal 2. A thousand different ones repeat: every fifth with negative
// numbers, every tenth with a text that wants quotes, every text of another length.
scripted::FastTransfer transferOf(std::uint32_t count);

}  // namespace bench

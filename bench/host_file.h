#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scripted/script.h"

// The host file of the measurements: records of 84 bytes with every single-byte field type.
namespace bench {

inline constexpr std::uint32_t RecordLength = 84;

struct Field {
    const char* kind;  // "zoned_6.0"
    std::string description;
    std::uint32_t offset;
    std::uint32_t length;
};

// Zoned 6.0, character 25, 20, 2 and 10, binary 4, packed 7.2 and 11.2, zoned 5.3, hexadecimal 2.
const std::vector<Field>& fields();

// A thousand different records, one behind the other: every fifth with negative numbers, every tenth with a text that
// wants quotes, every text of another length.
inline constexpr std::uint32_t DistinctRecords = 1000;
const std::string& records();

// What z7xscript is to answer for a host file of `count` records.
scripted::FastTransfer transferOf(std::uint32_t count);

}  // namespace bench

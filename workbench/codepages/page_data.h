#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <vector>

#include "row_table.h"

namespace codepages {

inline constexpr char16_t NoCharacter = 0xFFFD;
inline constexpr std::uint16_t NoCode = 0;  // as a value of the table from characters to codes; U+0000 is code 0 anyway

// A character whose code does not follow from the table of codes: one of several codes with that character, a code it
// is only written as, or NoCode where a code is only read.
struct Preference {
    char16_t character = 0;
    std::uint16_t code = NoCode;
};

// What the data file says of one code page.
struct PageData {
    PageData() { single.fill(NoCharacter); }

    std::uint32_t number = 0;
    bool host = false;
    bool doubleByte = false;
    std::array<char16_t, 256> single;
    RowTable pairs{NoCharacter};  // row = first byte
    std::vector<Preference> preferences;

    // PC pages only.
    std::bitset<256> leadBytes;
    std::array<std::uint8_t, 256> upper{}, lower{};
};

// Codes by character: pairs are above 0xFF. Of several codes with the same character the lowest counts, single bytes
// first; the preferences come after and have the last word.
RowTable invert(const PageData& page);

}  // namespace codepages

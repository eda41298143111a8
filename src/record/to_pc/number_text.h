#pragma once

#include <cstdint>

#include "record/host_field.h"

namespace record::to_pc {

// Writes the text of a hexadecimal or numeric field into `text`, terminated, and returns its length. `source` holds the
// field's bytes; `text` has room for twice as many, and never less than 600. AsciiText gives the fixed form,
// right-aligned in fieldTextWidth positions with blanks for leading zeros; the other types the shortest. A negative
// zero is a zero.
std::uint32_t formatNumericField(const HostField& field, const char* source, char* text);

// Whether the text of a field can be made: binary numbers of more than 8 bytes have none.
bool hasTextForm(const HostField& field);

// The digit of a packed number: for an even index the high nibble of byte index / 2, for an odd one its low nibble.
// Nibbles above 9 are not checked and give the characters behind '9'.
char packedDigit(const char* source, std::uint32_t index);

// 0xD and 0xB are the negative signs of zoned and packed numbers.
constexpr bool isNegativeSign(std::uint8_t nibble) { return nibble == 0xD || nibble == 0xB; }

void reverseBytes(const char* source, char* destination, std::uint32_t count);

}  // namespace record::to_pc

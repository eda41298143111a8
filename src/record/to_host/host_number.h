#pragma once

#include <cstdint>
#include <string_view>

#include "record/to_host/decimal_text.h"

// The host's forms of a number. A number is stored exactly or not at all: each builder is false, with nothing stored,
// when a digit would be lost.
namespace record::to_host {

// Two's complement, most significant byte first; the number is counted in units of its last decimal place. 1 to 8
// bytes, `count`.
bool toBinary(const DecimalText& number, std::int32_t decimals, char* destination, std::uint32_t count);

// A digit per byte: F0 plus the digit, the last D0 plus the digit when negative.
bool toZoned(const DecimalText& number, std::int32_t decimals, char* destination, std::uint32_t digits);

// `digits` nibbles before the sign nibble, F or D; nibbles in front of them are 0.
bool toPacked(const DecimalText& number, std::int32_t decimals, char* destination, std::uint32_t bytes,
              std::uint32_t digits);

// Pairs of hexadecimal digits: "40" is a host blank, every other pair the digit of its second character with the zone
// F. False for a pair that is not hexadecimal or has no decimal digit in the second place.
bool hexTextToBytes(std::string_view pairs, char* destination);

// For an even index sets byte index / 2 to the value in its high nibble; for an odd one replaces its low nibble.
void putNibble(char* destination, std::uint8_t value, std::uint32_t index);

}  // namespace record::to_host

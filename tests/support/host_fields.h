#pragma once

#include <cstdint>
#include <string>

// Host field descriptions: 40 bytes each, as a provider hands them over.
namespace hostfields {

std::string character(const std::string& name, std::uint16_t length);
std::string hex(const std::string& name, std::uint16_t length);
// `digits` is the declared number of digits, which is also the length of a zoned field.
std::string zoned(const std::string& name, std::uint8_t digits, std::uint8_t decimals = 0);
// digits / 2 + 1 bytes.
std::string packed(const std::string& name, std::uint8_t digits, std::uint8_t decimals = 0);
// 2 or 4 bytes; declared with 4 or 9 digits.
std::string binary(const std::string& name, std::uint8_t bytes, std::uint8_t decimals = 0);
// Any type code with a 16-bit length: 7 and 8 are the double-byte ones.
std::string typed(std::uint8_t code, const std::string& name, std::uint16_t length);
// Everything by hand.
std::string raw(std::uint8_t code, std::uint8_t byte1, std::uint8_t byte2, const std::string& name,
                std::uint8_t digits);

}  // namespace hostfields

#pragma once

#include <cstdint>

// Digits and signs of zoned and packed numbers. A zoned number has a digit in the low nibble of each byte and its sign
// in the high nibble (the zone) of the last one; a packed number has two digits in a byte and its sign in the last
// nibble.
namespace record::sign {

// On the host.
inline constexpr std::uint8_t HostZone = 0xF0;
inline constexpr std::uint8_t HostNegativeZone = 0xD0;
inline constexpr std::uint8_t HostPositive = 0xF;
inline constexpr std::uint8_t HostNegative = 0xD;

// On the PC.
inline constexpr std::uint8_t PcZone = 0x30;
inline constexpr std::uint8_t PcNegativeZone = 0xB0;
inline constexpr std::uint8_t PcPositive = 0x3;
inline constexpr std::uint8_t PcNegative = 0xB;

inline constexpr std::uint8_t LargestDigit = 9;

// Both systems' negative signs are understood in both directions.
constexpr bool isNegative(std::uint8_t nibble) { return nibble == HostNegative || nibble == PcNegative; }

constexpr std::uint8_t highNibble(char byte) { return static_cast<std::uint8_t>(byte) >> 4; }
constexpr std::uint8_t lowNibble(char byte) { return static_cast<std::uint8_t>(byte) & 0x0F; }

// The two nibbles as a byte.
constexpr char ofNibbles(std::uint8_t high, std::uint8_t low) { return static_cast<char>(high << 4 | low); }

}  // namespace record::sign

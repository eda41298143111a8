#pragma once

#include <cstdint>
#include <string_view>

namespace record {

// Type codes of a host field description. Every other code is treated as Character; 7 and 8 carry double-byte text.
enum HostFieldType : std::uint8_t {
    Hex = 0,
    Binary = 1,     // signed, high byte first, 2 or 4 bytes
    Character = 2,  // in the host code page
    Zoned = 3,      // a digit per byte in the low nibble, the sign in the last byte's high nibble
    Packed = 4,     // two digits per byte, the sign in the last nibble
    DoubleByteOnly = 7,
    DoubleByteOpen = 8,
};

// Where the parts of a description stand. It has 40 bytes; those behind the digits are not used.
namespace description {
inline constexpr std::uint32_t Type = 0;
inline constexpr std::uint32_t Length = 1;    // types 1, 3, 4: one byte (binary: bytes, zoned: digits, packed: bytes)
inline constexpr std::uint32_t Decimals = 2;  // of those; for all others the length has 16 bits, low byte first
inline constexpr std::uint32_t Name = 3;      // padded with blanks
inline constexpr std::uint32_t NameEnd = 32;
inline constexpr std::uint32_t Digits = 33;  // declared for a number
inline constexpr std::uint32_t Size = 40;
}  // namespace description

// One field as the host describes it.
class HostField {
public:
    // Takes the 40 bytes of a description. The name keeps at most 29 characters, without trailing blanks.
    explicit HostField(std::string_view bytes);

    std::uint8_t type() const { return type_; }
    // Bytes in the host record.
    std::uint32_t length() const { return length_; }
    // Decimal positions; -1 for a character field, 0 for a hexadecimal one.
    std::int32_t decimals() const { return decimals_; }
    // Declared digits of a number.
    std::uint32_t precision() const { return precision_; }
    bool isCharacter() const { return decimals_ < 0; }
    bool isNumber() const { return type_ == Binary || type_ == Zoned || type_ == Packed; }

    const char* name() const { return name_; }
    // Bytes of the name before its first blank, of one byte or two, or the end.
    std::uint32_t nameLength() const;

private:
    std::uint8_t type_;
    std::uint32_t length_;
    std::int32_t decimals_;
    std::uint32_t precision_;
    char name_[description::NameEnd - description::Name + 1] = {};
};

}  // namespace record

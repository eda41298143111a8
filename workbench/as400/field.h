#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The fields of a host file.
namespace as400 {

// The codes of the field descriptions sent to the PC.
enum class FieldType : std::uint8_t {
    Hex = 0,
    Binary = 1,
    Character = 2,
    Zoned = 3,
    Packed = 4,
    DoubleByte = 7,  // double-byte characters only, between a shift-out and a shift-in
    Open = 8,        // single- and double-byte characters mixed
    Date = 11,
    Time = 12,
};

struct Field {
    std::string name;    // as the PC sees it: no blanks, upper case, at most 29 characters
    std::string column;  // of the SQLite table
    std::string text;
    FieldType type = FieldType::Character;
    std::uint32_t length = 0;    // bytes in the host record; of dates and times set when their format is known
    std::uint32_t digits = 0;    // of numbers
    std::uint32_t decimals = 0;  // of numbers

    bool isNumber() const { return type == FieldType::Binary || type == FieldType::Zoned || type == FieldType::Packed; }
};

// A field from its type's name (CHAR, ZONED, PACKED, BINARY, HEX, DATE, TIME, DBCS, OPEN) and size: characters or
// bytes, or digits with decimals. Binary takes 2 or 4 bytes. Throws std::invalid_argument for anything else.
Field makeField(std::string_view name, std::string_view type, std::uint32_t size, std::uint32_t decimals,
                std::string_view text);
std::string_view typeName(FieldType type);

inline constexpr std::size_t DescriptionLength = 40;
// The field description sent to the PC. `page` is the host code page of the file, told with texts.
std::array<std::uint8_t, DescriptionLength> describe(const Field& field, std::uint32_t page);

std::uint32_t recordLength(std::span<const Field> fields);
const Field* findField(std::span<const Field> fields, std::string_view name);  // case ignored

std::string upperCase(std::string_view text);  // ASCII letters
bool sameName(std::string_view left, std::string_view right);
// 1 to 10 letters, digits and $#@_, no digit or underscore first; upper case.
bool isHostName(std::string_view name);

}  // namespace as400

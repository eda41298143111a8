#include "as400/field.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <numeric>
#include <stdexcept>

namespace as400 {

namespace {

struct TypeRow {
    FieldType type;
    std::string_view name;
    std::uint32_t largestSize;
};

constexpr TypeRow Types[] = {
    {FieldType::Character, "CHAR", 4096}, {FieldType::Zoned, "ZONED", 31},       {FieldType::Packed, "PACKED", 31},
    {FieldType::Binary, "BINARY", 4},     {FieldType::Hex, "HEX", 2046},         {FieldType::Date, "DATE", 10},
    {FieldType::Time, "TIME", 10},        {FieldType::DoubleByte, "DBCS", 4096}, {FieldType::Open, "OPEN", 4096},
};

const TypeRow& rowOf(std::string_view name) {
    for (const TypeRow& row : Types) {
        if (row.name == name) return row;
    }
    throw std::invalid_argument("unknown field type " + std::string(name));
}

std::uint32_t lengthOf(FieldType type, std::uint32_t size) { return type == FieldType::Packed ? size / 2 + 1 : size; }

std::uint32_t digitsOf(FieldType type, std::uint32_t size) {
    switch (type) {
        case FieldType::Zoned:
        case FieldType::Packed:
            return size;
        case FieldType::Binary:
            return size == 2 ? 5 : 10;
        case FieldType::Hex:
            return size * 2;
        default:
            return 0;
    }
}

char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

Field makeField(std::string_view name, std::string_view type, std::uint32_t size, std::uint32_t decimals,
                std::string_view text) {
    const TypeRow& row = rowOf(type);
    const bool fits = size >= 1 && size <= row.largestSize && decimals <= size;
    const bool binaryFits = row.type != FieldType::Binary || size == 2 || size == 4;
    // Shift-out, whole pairs, shift-in.
    const bool pairsFit = row.type != FieldType::DoubleByte || (size >= 4 && size % 2 == 0);
    if (!fits || !binaryFits || !pairsFit) throw std::invalid_argument("size of field " + std::string(name));
    Field field;
    field.name = upperCase(name);
    field.column = field.name;
    field.text = text;
    field.type = row.type;
    field.length = lengthOf(row.type, size);
    field.digits = digitsOf(row.type, size);
    field.decimals = field.isNumber() ? decimals : 0;
    return field;
}

std::string_view typeName(FieldType type) { return std::ranges::find(Types, type, &TypeRow::type)->name; }

std::array<std::uint8_t, DescriptionLength> describe(const Field& field, std::uint32_t page) {
    constexpr std::size_t NameAt = 3, NameLength = 30, DigitsAt = 33, PageAt = 34;
    std::array<std::uint8_t, DescriptionLength> bytes{};
    bytes[0] = static_cast<std::uint8_t>(field.type);
    bytes[1] = static_cast<std::uint8_t>(field.length);
    bytes[2] = static_cast<std::uint8_t>(field.isNumber() ? field.decimals : field.length >> 8);
    std::fill_n(bytes.begin() + NameAt, NameLength, std::uint8_t{' '});
    std::memcpy(bytes.data() + NameAt, field.name.data(), std::min(NameLength, field.name.size()));
    bytes[DigitsAt] = static_cast<std::uint8_t>(std::min(field.digits, 255u));
    if (field.isNumber() || field.type == FieldType::Hex) return bytes;
    bytes[PageAt] = static_cast<std::uint8_t>(page);
    bytes[PageAt + 1] = static_cast<std::uint8_t>(page >> 8);
    return bytes;
}

std::uint32_t recordLength(std::span<const Field> fields) {
    return std::accumulate(fields.begin(), fields.end(), 0u,
                           [](std::uint32_t sum, const Field& field) { return sum + field.length; });
}

const Field* findField(std::span<const Field> fields, std::string_view name) {
    const auto found = std::ranges::find_if(fields, [&](const Field& field) { return sameName(field.name, name); });
    return found == fields.end() ? nullptr : &*found;
}

std::string upperCase(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), upper);
    return result;
}

bool sameName(std::string_view left, std::string_view right) { return upperCase(left) == upperCase(right); }

bool isHostName(std::string_view name) {
    const auto allowed = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || std::strchr("$#@_", c) != nullptr;
    };
    const bool startsWell = !name.empty() && name[0] != '_' && !(name[0] >= '0' && name[0] <= '9');
    return startsWell && name.size() <= 10 && std::ranges::all_of(name, allowed);
}

}  // namespace as400

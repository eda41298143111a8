#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "as400/database.h"

// Decimal numbers as digit strings, and their three host forms. Nothing is ever rounded or cut except a floating point
// value, which is rounded to the decimals asked for.
namespace as400 {

// The value is digits / 10^decimals, where the decimals are the field's. No leading zeros; zero is "0" and positive.
struct Decimal {
    bool negative = false;
    std::string digits = "0";

    static Decimal of(bool negative, std::string_view digits);
    static Decimal of(std::int64_t unscaled);  // 1250 for 12.50 of two decimals
    bool operator==(const Decimal&) const = default;
};

// Null when the text is no number or has more decimals than allowed.
std::optional<Decimal> decimalFromText(std::string_view text, std::uint32_t decimals);
std::optional<Decimal> decimalFromDouble(double value, std::uint32_t decimals);
// Null for NULL, bytes, and texts that are no number.
std::optional<Decimal> decimalFromValue(const Value& value, std::uint32_t decimals);

// Plain decimal text: "-12.50".
std::string decimalText(const Decimal& number, std::uint32_t decimals);
// What a column holds for the number: an integer or floating point value while that is exact for every value of the
// field's digits, else text, which is put into `text`.
Value storedNumber(const Decimal& number, std::uint32_t digits, std::uint32_t decimals, std::string& text);
bool storedAsText(std::uint32_t digits, std::uint32_t decimals);

// Writers fill `out`, whose size is the field's; false when the number needs more digits or bytes. Readers give null
// for bytes that are no number.
bool writeZoned(const Decimal& number, std::span<std::uint8_t> out);
bool writePacked(const Decimal& number, std::uint32_t digits, std::span<std::uint8_t> out);
bool writeBinary(const Decimal& number, std::span<std::uint8_t> out);  // 2 or 4 bytes, most significant first
std::optional<Decimal> readZoned(std::span<const std::uint8_t> bytes);
std::optional<Decimal> readPacked(std::span<const std::uint8_t> bytes);
Decimal readBinary(std::span<const std::uint8_t> bytes);

}  // namespace as400

#include "as400/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace as400 {

namespace {

// A double holds any number of 15 digits, a 64-bit integer any of 18.
constexpr std::uint32_t ExactFloatingDigits = 15;
constexpr std::uint32_t ExactIntegerDigits = 18;

bool allDigits(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

bool isNegativeSign(std::uint8_t sign) { return sign == 0xD || sign == 0xB; }

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

Decimal Decimal::of(bool negative, std::string_view digits) {
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    if (digits.empty()) return {};
    return {negative, std::string(digits)};
}

std::optional<Decimal> decimalFromText(std::string_view text, std::uint32_t decimals) {
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    const auto point = std::min(text.find('.'), text.size());
    std::string digits(text.substr(0, point));
    std::string fraction(text.substr(std::min(point + 1, text.size())));
    if (digits.empty() && fraction.empty()) return std::nullopt;
    if (!allDigits(digits) || !allDigits(fraction)) return std::nullopt;
    const auto significant = fraction.find_last_not_of('0') + 1;  // 0 when there is none
    if (significant > decimals) return std::nullopt;
    fraction.resize(decimals, '0');
    return Decimal::of(negative, digits + fraction);
}

std::optional<Decimal> decimalFromDouble(double value, std::uint32_t decimals) {
    if (!std::isfinite(value)) return std::nullopt;
    std::array<char, 400> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed,
                                   static_cast<int>(decimals));
    if (end.ec != std::errc{}) return std::nullopt;
    return decimalFromText({buffer.data(), end.ptr}, decimals);
}

std::optional<Decimal> decimalFromValue(const Value& value, std::uint32_t decimals) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return decimalFromText(std::to_string(*integer), decimals);
    }
    if (const auto* real = std::get_if<double>(&value)) return decimalFromDouble(*real, decimals);
    if (const auto* text = std::get_if<std::string>(&value)) return decimalFromText(*text, decimals);
    return std::nullopt;
}

std::string decimalText(const Decimal& number, std::uint32_t decimals) {
    std::string text = number.digits;
    if (text.size() <= decimals) text.insert(0, decimals + 1 - text.size(), '0');
    if (decimals > 0) text.insert(text.size() - decimals, 1, '.');
    return number.negative ? '-' + text : text;
}

bool storedAsText(std::uint32_t digits, std::uint32_t decimals) {
    return digits > (decimals > 0 ? ExactFloatingDigits : ExactIntegerDigits);
}

Value storedNumber(const Decimal& number, std::uint32_t digits, std::uint32_t decimals) {
    const std::string text = decimalText(number, decimals);
    if (storedAsText(digits, decimals)) return text;
    const char* end = text.data() + text.size();
    if (decimals == 0) {
        std::int64_t integer = 0;
        std::from_chars(text.data(), end, integer);
        return integer;
    }
    double real = 0;
    std::from_chars(text.data(), end, real);
    return real;
}

bool writeZoned(const Decimal& number, std::span<std::uint8_t> out) {
    if (number.digits.size() > out.size()) return false;
    std::ranges::fill(out, std::uint8_t{0xF0});
    const auto start = out.size() - number.digits.size();
    for (std::size_t i = 0; i < number.digits.size(); ++i) {
        out[start + i] = static_cast<std::uint8_t>(0xF0 | (number.digits[i] - '0'));
    }
    if (number.negative) out.back() = static_cast<std::uint8_t>(0xD0 | (out.back() & 0x0F));
    return true;
}

bool writePacked(const Decimal& number, std::uint32_t digits, std::span<std::uint8_t> out) {
    if (number.digits.size() > digits) return false;
    std::string nibbles(out.size() * 2 - 1 - number.digits.size(), '0');
    nibbles += number.digits;
    nibbles += static_cast<char>('0' + (number.negative ? 0xD : 0xF));
    for (std::size_t i = 0; i < out.size(); ++i) {
        out[i] = static_cast<std::uint8_t>((nibbles[2 * i] - '0') << 4 | (nibbles[2 * i + 1] - '0'));
    }
    return true;
}

bool writeBinary(const Decimal& number, std::span<std::uint8_t> out) {
    std::int64_t value = 0;
    const auto end = number.digits.data() + number.digits.size();
    if (std::from_chars(number.digits.data(), end, value).ec != std::errc{}) return false;
    if (number.negative) value = -value;
    const std::int64_t limit = std::int64_t{1} << (out.size() * 8 - 1);
    if (value < -limit || value >= limit) return false;
    for (std::size_t i = out.size(); i-- > 0; value >>= 8) out[i] = static_cast<std::uint8_t>(value & 0xFF);
    return true;
}

std::optional<Decimal> readZoned(std::span<const std::uint8_t> bytes) {
    std::string digits;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool last = i + 1 == bytes.size();
        const bool zoneAllowed = last ? (bytes[i] >> 4) >= 0xA : (bytes[i] >> 4) == 0xF;
        if (!zoneAllowed || (bytes[i] & 0x0F) > 9) return std::nullopt;
        digits += static_cast<char>('0' + (bytes[i] & 0x0F));
    }
    return Decimal::of(!bytes.empty() && isNegativeSign(bytes.back() >> 4), digits);
}

std::optional<Decimal> readPacked(std::span<const std::uint8_t> bytes) {
    std::string digits;
    for (std::size_t i = 0; i < bytes.size() * 2; ++i) {
        const std::uint8_t nibble = i % 2 == 0 ? bytes[i / 2] >> 4 : bytes[i / 2] & 0x0F;
        const bool sign = i + 1 == bytes.size() * 2;
        if (sign != (nibble > 9)) return std::nullopt;
        if (!sign) digits += static_cast<char>('0' + nibble);
    }
    return Decimal::of(!bytes.empty() && isNegativeSign(bytes.back() & 0x0F), digits);
}

Decimal readBinary(std::span<const std::uint8_t> bytes) {
    std::int64_t value = !bytes.empty() && bytes[0] >= 0x80 ? -1 : 0;
    for (const std::uint8_t byte : bytes) value = value * 256 + byte;
    return *decimalFromText(std::to_string(value), 0);
}

}  // namespace as400

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
constexpr double PowersOfTen[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

bool allDigits(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

bool isNegativeSign(std::uint8_t sign) { return sign == 0xD || sign == 0xB; }

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The value times 10^decimals, rounded. Null where the rounding of the product itself, below 0.07 up to 1e15, could
// take the result to a neighbour.
std::optional<std::int64_t> unscaledNumber(double value, std::uint32_t decimals) {
    if (decimals >= std::size(PowersOfTen)) return std::nullopt;
    const double product = value * PowersOfTen[decimals];
    if (!(std::abs(product) < 1e15)) return std::nullopt;
    const auto nearest = static_cast<std::int64_t>(product + std::copysign(0.5, product));
    if (std::abs(product - static_cast<double>(nearest)) > 0.4) return std::nullopt;
    return nearest;
}

}  // namespace

Decimal Decimal::of(std::int64_t unscaled) {
    std::array<char, 20> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), unscaled).ptr;
    const bool negative = unscaled < 0;
    return {negative, std::string(buffer.data() + (negative ? 1 : 0), end)};
}

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
    std::string_view fraction = text.substr(std::min(point + 1, text.size()));
    if (digits.empty() && fraction.empty()) return std::nullopt;
    if (!allDigits(digits) || !allDigits(fraction)) return std::nullopt;
    fraction = fraction.substr(0, fraction.find_last_not_of('0') + 1);
    if (fraction.size() > decimals) return std::nullopt;
    digits += fraction;
    digits.append(decimals - fraction.size(), '0');
    return Decimal::of(negative, digits);
}

std::optional<Decimal> decimalFromDouble(double value, std::uint32_t decimals) {
    if (!std::isfinite(value)) return std::nullopt;
    if (const auto unscaled = unscaledNumber(value, decimals)) return Decimal::of(*unscaled);
    std::array<char, 400> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed,
                                   static_cast<int>(decimals));
    if (end.ec != std::errc{}) return std::nullopt;
    return decimalFromText({buffer.data(), end.ptr}, decimals);
}

std::optional<Decimal> decimalFromValue(const Value& value, std::uint32_t decimals) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        Decimal number = Decimal::of(*integer);
        if (*integer != 0) number.digits.append(decimals, '0');
        return number;
    }
    if (const auto* real = std::get_if<double>(&value)) return decimalFromDouble(*real, decimals);
    if (const auto* text = std::get_if<std::string_view>(&value)) return decimalFromText(*text, decimals);
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

Value storedNumber(const Decimal& number, std::uint32_t digits, std::uint32_t decimals, std::string& text) {
    if (storedAsText(digits, decimals)) {
        text = decimalText(number, decimals);
        return std::string_view(text);
    }
    std::int64_t unscaled = 0;
    std::from_chars(number.digits.data(), number.digits.data() + number.digits.size(), unscaled);
    if (number.negative) unscaled = -unscaled;
    if (decimals == 0) return unscaled;
    return static_cast<double>(unscaled) / PowersOfTen[decimals];  // of two exact values, so it is rounded once
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
    std::ranges::fill(out, std::uint8_t{0});
    out.back() = number.negative ? 0x0D : 0x0F;
    std::size_t nibble = out.size() * 2 - 1 - number.digits.size();
    for (const char digit : number.digits) {
        out[nibble / 2] |= static_cast<std::uint8_t>((digit - '0') << (nibble % 2 == 0 ? 4 : 0));
        ++nibble;
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
    std::string digits(bytes.size(), '0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool last = i + 1 == bytes.size();
        const bool zoneAllowed = last ? (bytes[i] >> 4) >= 0xA : (bytes[i] >> 4) == 0xF;
        if (!zoneAllowed || (bytes[i] & 0x0F) > 9) return std::nullopt;
        digits[i] = static_cast<char>('0' + (bytes[i] & 0x0F));
    }
    return Decimal::of(!bytes.empty() && isNegativeSign(bytes.back() >> 4), digits);
}

std::optional<Decimal> readPacked(std::span<const std::uint8_t> bytes) {
    if (bytes.empty()) return Decimal{};
    std::string digits(bytes.size() * 2 - 1, '0');
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const std::uint8_t nibble = i % 2 == 0 ? bytes[i / 2] >> 4 : bytes[i / 2] & 0x0F;
        if (nibble > 9) return std::nullopt;
        digits[i] = static_cast<char>('0' + nibble);
    }
    const std::uint8_t sign = bytes.back() & 0x0F;
    if (sign <= 9) return std::nullopt;
    return Decimal::of(isNegativeSign(sign), digits);
}

Decimal readBinary(std::span<const std::uint8_t> bytes) {
    std::int64_t value = !bytes.empty() && bytes[0] >= 0x80 ? -1 : 0;
    for (const std::uint8_t byte : bytes) value = value * 256 + byte;
    return Decimal::of(value);
}

}  // namespace as400

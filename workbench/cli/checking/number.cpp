#include "checking/number.h"

#include <algorithm>
#include <limits>

namespace checking {
namespace {

constexpr std::int64_t LargestUnits = 999'999'999'999'999'999;  // 18 digits
constexpr std::uint32_t LargestBinary = 8;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool isNegativeSign(std::uint8_t nibble) { return nibble == 0xD || nibble == 0xB; }

// The digits of a zoned or packed number, high digit first; false at a nibble that is none.
template <class Take>
bool walkDigits(const HostColumn& column, const std::uint8_t* bytes, Take take) {
    const bool isZoned = column.type == column_type::Zoned;
    for (std::uint32_t at = 0; at < column.length; ++at) {
        const std::uint8_t high = bytes[at] >> 4, low = bytes[at] & 0x0F;
        const bool isLast = at + 1 == column.length;
        if (!isZoned && (high > 9 || !take(high))) return false;
        if ((isZoned || !isLast) && (low > 9 || !take(low))) return false;
    }
    return true;
}

bool isHostNegative(const HostColumn& column, const std::uint8_t* bytes) {
    const std::uint8_t last = bytes[column.length - 1];
    return isNegativeSign(column.type == column_type::Zoned ? last >> 4 : last & 0x0F);
}

std::int64_t binaryValue(const HostColumn& column, const std::uint8_t* bytes) {
    std::uint64_t value = bytes[0] & 0x80 ? std::numeric_limits<std::uint64_t>::max() : 0;
    for (std::uint32_t at = 0; at < column.length; ++at) value = value << 8 | bytes[at];
    return static_cast<std::int64_t>(value);
}

// From digits and the places of them that are a fraction.
Decimal makeDecimal(bool isNegative, std::string digits, std::size_t decimals) {
    if (digits.size() < decimals) digits.insert(0, decimals - digits.size(), '0');
    Decimal number;
    number.integer = digits.substr(0, digits.size() - decimals);
    number.fraction = digits.substr(digits.size() - decimals);
    number.integer.erase(0, number.integer.find_first_not_of('0'));
    number.fraction.erase(number.fraction.find_last_not_of('0') + 1);
    number.isNegative = isNegative && !number.isZero();
    return number;
}

// Without the separators of thousands. Nothing when the groups behind them have not three digits each.
std::optional<std::string> ungrouped(std::string_view digits, char separator) {
    std::string result;
    std::size_t inGroup = 0;
    bool isGrouped = false;
    for (const char character : digits) {
        if (character == separator) {
            if (inGroup == 0 || inGroup > 3 || (isGrouped && inGroup != 3)) return std::nullopt;
            isGrouped = true;
            inGroup = 0;
            continue;
        }
        result += character;
        ++inGroup;
    }
    if (isGrouped && inGroup != 3) return std::nullopt;
    return result;
}

bool areDigits(std::string_view text) { return std::all_of(text.begin(), text.end(), isDigit); }

}  // namespace

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string hexDigits(std::string_view bytes) {
    constexpr char Digits[] = "0123456789ABCDEF";
    std::string text;
    for (const char byte : bytes) {
        text += Digits[static_cast<std::uint8_t>(byte) >> 4];
        text += Digits[static_cast<std::uint8_t>(byte) & 0x0F];
    }
    return text;
}

std::optional<std::int64_t> plainUnits(std::string_view text, char decimalSeparator, std::uint32_t decimals) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at < end && *at == ' ') ++at;
    const bool isNegative = at < end && *at == '-';
    if (isNegative) ++at;
    std::int64_t units = 0;
    const char* const first = at;
    for (; at < end && isDigit(*at); ++at) {
        if (units > LargestUnits / 10) return std::nullopt;
        units = 10 * units + (*at - '0');
    }
    bool isSeen = at > first;
    std::uint32_t missing = decimals;
    if (at < end && *at == decimalSeparator) {
        for (++at; at < end && isDigit(*at); ++at) {
            isSeen = true;
            if (missing == 0 && *at != '0') return std::nullopt;
            if (missing == 0) continue;
            if (units > LargestUnits / 10) return std::nullopt;
            units = 10 * units + (*at - '0');
            --missing;
        }
    }
    for (; missing > 0; --missing) {
        if (units > LargestUnits / 10) return std::nullopt;
        units *= 10;
    }
    while (at < end && *at == ' ') ++at;
    if (at < end || !isSeen) return std::nullopt;
    return isNegative ? -units : units;
}

std::optional<std::int64_t> hostUnits(const HostColumn& column, const std::uint8_t* bytes) {
    if (column.length == 0) return std::nullopt;
    if (column.type == column_type::Binary) {
        if (column.length > LargestBinary) return std::nullopt;
        const std::int64_t value = binaryValue(column, bytes);
        return value >= -LargestUnits && value <= LargestUnits ? std::optional(value) : std::nullopt;
    }
    std::int64_t units = 0;
    const bool isNumber = walkDigits(column, bytes, [&](std::uint8_t digit) {
        if (units > LargestUnits / 10) return false;
        units = 10 * units + digit;
        return true;
    });
    if (!isNumber) return std::nullopt;
    return isHostNegative(column, bytes) ? -units : units;
}

std::string Decimal::text(char decimalSeparator) const {
    std::string result = isNegative ? "-" : "";
    result += integer.empty() ? "0" : integer;
    if (!fraction.empty()) result += decimalSeparator + fraction;
    return result;
}

std::optional<Decimal> readDecimal(std::string_view text, char decimalSeparator, bool grouped) {
    text = withoutBlanks(text);
    const bool isNegative = text.starts_with('-');
    if (isNegative) text = withoutBlanks(text.substr(1));
    const std::size_t point = std::min(text.find(decimalSeparator), text.size());
    std::string integer(text.substr(0, point));
    const std::string_view fraction = point < text.size() ? text.substr(point + 1) : std::string_view();
    if (grouped && !areDigits(integer)) {
        const auto plain = ungrouped(integer, decimalSeparator == ',' ? '.' : ',');
        if (!plain) return std::nullopt;
        integer = *plain;
    }
    if (integer.empty() && fraction.empty()) return std::nullopt;
    if (!areDigits(integer) || !areDigits(fraction)) return std::nullopt;
    return makeDecimal(isNegative, integer.append(fraction), fraction.size());
}

std::optional<Decimal> hostDecimal(const HostColumn& column, const std::uint8_t* bytes) {
    if (column.length == 0) return std::nullopt;
    if (column.type == column_type::Binary) {
        if (column.length > LargestBinary) return std::nullopt;
        std::string digits = std::to_string(binaryValue(column, bytes));
        const bool isNegative = digits.starts_with('-');
        return makeDecimal(isNegative, digits.substr(isNegative ? 1 : 0), column.decimals);
    }
    std::string digits;
    const bool isNumber = walkDigits(column, bytes, [&](std::uint8_t digit) {
        digits += static_cast<char>('0' + digit);
        return true;
    });
    if (!isNumber) return std::nullopt;
    return makeDecimal(isHostNegative(column, bytes), digits, column.decimals);
}

std::uint32_t integerDigits(const HostColumn& column) {
    std::uint32_t digits = column.type == column_type::Packed ? 2 * column.length - 1 : column.length;
    const bool isPadded = column.type == column_type::Packed && column.digits > 0 && column.digits < digits;
    if (isPadded) digits = column.digits;
    if (column.type == column_type::Binary) digits = column.length <= 2 ? 5 : column.length <= 4 ? 10 : 19;
    return digits > column.decimals ? digits - column.decimals : 0;
}

}  // namespace checking

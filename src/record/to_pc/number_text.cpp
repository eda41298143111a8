#include "record/to_pc/number_text.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "settings/pc_file_types.h"

namespace record::to_pc {
namespace {

constexpr std::uint32_t LargestBinary = 8;
constexpr std::uint32_t IntegerText = 24;

bool isFixedForm(const HostField& field) { return field.transferSettings().receiveFileType == settings::AsciiText; }

std::uint32_t finish(char* text, char* end) {
    *end = '\0';
    return static_cast<std::uint32_t>(end - text);
}

char* cutTrailingZeros(const char* stop, char* end) {
    while (end > stop && end[-1] == '0') --end;
    return end;
}

// --- Hexadecimal -------------------------------------------------------------------------------------------------

std::uint32_t formatHex(const HostField& field, const char* source, char* text) {
    constexpr char digits[] = "0123456789ABCDEF";
    const std::int32_t type = field.transferSettings().receiveFileType;
    const bool quoted = type == settings::BasicSequential || type == settings::Dif;
    char* next = text;
    if (quoted) *next++ = '"';
    for (std::uint32_t at = 0, count = field.fieldLength().bytes; at < count; ++at) {
        const auto byte = static_cast<std::uint8_t>(source[at]);
        *next++ = digits[byte >> 4];
        *next++ = digits[byte & 0x0F];
    }
    if (quoted) *next++ = '"';
    return finish(text, next);
}

// --- Binary ------------------------------------------------------------------------------------------------------

std::int64_t signedBigEndian(const char* source, std::uint32_t bytes) {
    std::uint64_t value = bytes > 0 && static_cast<std::int8_t>(source[0]) < 0 ? ~std::uint64_t{0} : 0;
    for (std::uint32_t at = 0; at < bytes; ++at) value = value << 8 | static_cast<std::uint8_t>(source[at]);
    return static_cast<std::int64_t>(value);
}

// Filled from the right over width + 1 positions: the separator stands `decimals` positions from the end, missing
// decimals become zeros, and a sign follows the separator directly.
std::uint32_t formatBinaryDecimals(const HostField& field, const char* integer, const char* integerEnd,
                                   std::int32_t decimals, char* text) {
    const auto width = static_cast<std::int32_t>(field.fieldTextWidth('\0'));
    char positions[LargestBinary * 4];
    std::fill(positions, positions + width + 1, ' ');
    const char* rest = integerEnd;
    bool placed = false;
    std::int32_t position = width;
    for (; position >= 0; --position) {
        if (position == width - decimals) {
            positions[position] = field.transferSettings().decimalSeparator;
            placed = true;
        } else if (!placed && (rest == integer || rest[-1] == '-')) {
            positions[position] = '0';
        } else if (rest == integer) {
            break;
        } else {
            positions[position] = *--rest;
        }
    }
    if (isFixedForm(field)) return finish(text, std::copy(positions, positions + width + 1, text));
    const char* first = positions + (position + 1);
    char* end = cutTrailingZeros(first, positions + width + 1);
    if (end - first == 1 && *first == field.transferSettings().decimalSeparator) return finish(text, text);
    return finish(text, std::copy(first, static_cast<const char*>(end), text));
}

std::uint32_t formatBinary(const HostField& field, const char* source, char* text) {
    const FieldLength length = field.fieldLength();
    char integer[IntegerText];
    const std::int64_t value = signedBigEndian(source, length.bytes);
    const char* integerEnd = std::to_chars(integer, integer + IntegerText, value).ptr;
    if (length.decimals > 0) return formatBinaryDecimals(field, integer, integerEnd, length.decimals, text);
    char* next = text;
    if (isFixedForm(field)) {
        const auto padding = static_cast<std::int32_t>(field.fieldTextWidth('\0')) - (integerEnd - integer);
        if (padding > 0) next = std::fill_n(text, padding, ' ');
    }
    return finish(text, std::copy(static_cast<const char*>(integer), integerEnd, next));
}

// --- Zoned and packed --------------------------------------------------------------------------------------------

// The digits of a zoned or packed number one after the other; zeros behind the last.
class Digits {
public:
    Digits(const HostField& field, const char* source) : source_(source), packed_(field.type() == Packed) {
        const std::uint32_t bytes = field.fieldLength().bytes;
        count_ = packed_ ? (bytes ? 2 * bytes - 1 : 0) : bytes;
        if (bytes > 0) {
            const auto last = static_cast<std::uint8_t>(source[bytes - 1]);
            negative_ = isNegativeSign(packed_ ? last & 0x0F : last >> 4);
        }
    }
    void skip() { ++index_; }
    char next() {
        if (index_ >= count_) return '0';
        const std::uint32_t at = index_++;
        return packed_ ? packedDigit(source_, at) : static_cast<char>('0' + (source_[at] & 0x0F));
    }
    bool isNegative() const {
        if (!negative_) return false;
        for (Digits rest = *this; rest.index_ < rest.count_;)
            if (rest.next() != '0') return true;
        return false;
    }
    std::uint32_t count() const { return count_; }

private:
    const char* source_;
    bool packed_;
    bool negative_ = false;
    std::uint32_t count_ = 0;
    std::uint32_t index_ = 0;
};

// Sign position, then all digits with a point at its place: `width` positions.
bool rawText(const HostField& field, const char* source, std::uint32_t width, std::int32_t decimals, char* text) {
    Digits digits(field, source);
    const std::uint32_t point = decimals > 0 ? 1 : 0;
    // Narrower than all digits: the first nibble is a pad, and no digit of the value.
    if (width < digits.count() + 1 + point) digits.skip();
    const bool negative = digits.isNegative();
    text[0] = negative ? '-' : ' ';
    const std::int32_t pointAt = decimals > 0 ? static_cast<std::int32_t>(width) - decimals - 1 : -1;
    for (std::uint32_t at = 1; at < width; ++at)
        text[at] = static_cast<std::int32_t>(at) == pointAt ? '.' : digits.next();
    return negative;
}

// Leading zeros become blanks, and the sign moves right to stand before the first significant digit.
std::uint32_t toFixedForm(char* text, std::uint32_t width, bool negative, char separator) {
    bool leading = true;
    for (std::uint32_t at = 0; at < width; ++at) {
        if (leading && (text[at] == ' ' || text[at] == '0')) {
            text[at] = ' ';
            if (negative) {
                text[at] = '-';
                if (at > 0) text[at - 1] = ' ';
            }
        } else if (text[at] == '.') {
            text[at] = separator;
            leading = false;
        } else if (text[at] != '-') {
            leading = false;
        }
    }
    return finish(text, text + width);
}

std::uint32_t toDelimitedForm(char* text, std::uint32_t width, std::int32_t decimals, char separator) {
    char* next = text;
    bool leading = true;
    char* afterPoint = nullptr;
    for (std::uint32_t at = 0; at < width; ++at) {
        const char character = text[at];
        if (leading && (character == ' ' || character == '0')) continue;
        if (character != '-') leading = false;
        *next++ = character == '.' ? separator : character;
        if (character == '.') afterPoint = next;
    }
    if (decimals > 0) next = cutTrailingZeros(afterPoint ? afterPoint : text + 1, next);
    if (next - text == 1 && afterPoint == next) next = text;  // a separator alone
    return finish(text, next);
}

std::uint32_t formatDecimal(const HostField& field, const char* source, char* text) {
    const std::uint32_t width = field.fieldTextWidth('\0');
    if (width == 0) return finish(text, text);
    const std::int32_t decimals = field.fieldLength().decimals;
    const bool negative = rawText(field, source, width, decimals, text);
    const char separator = field.transferSettings().decimalSeparator;
    return isFixedForm(field) ? toFixedForm(text, width, negative, separator)
                              : toDelimitedForm(text, width, decimals, separator);
}

// What is left empty or blank is a zero.
std::uint32_t withZero(char* text, std::uint32_t length) {
    if (length == 0) {
        std::memcpy(text, "0", 2);
        return 1;
    }
    if (text[length - 1] == ' ' && std::strspn(text, " ") == length) text[length - 1] = '0';
    return length;
}

}  // namespace

bool hasTextForm(const HostField& field) {
    return field.type() != Binary || field.fieldLength().bytes <= LargestBinary;
}

char packedDigit(const char* source, std::uint32_t index) {
    const auto byte = static_cast<std::uint8_t>(source[index / 2]);
    return static_cast<char>('0' + (index % 2 == 0 ? byte >> 4 : byte & 0x0F));
}

void reverseBytes(const char* source, char* destination, std::uint32_t count) {
    std::reverse_copy(source, source + count, destination);
}

std::uint32_t formatNumericField(const HostField& field, const char* source, char* text) {
    switch (field.type()) {
        case Hex:
            return formatHex(field, source, text);
        case Binary:
            return withZero(text, formatBinary(field, source, text));
        case Zoned:
        case Packed:
            return withZero(text, formatDecimal(field, source, text));
        default:
            return finish(text, text);
    }
}

}  // namespace record::to_pc

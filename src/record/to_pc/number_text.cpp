#include "record/to_pc/number_text.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "bytes/byte_order.h"
#include "record/signs.h"

namespace record::to_pc {
namespace {

constexpr std::uint32_t LargestBinary = 8;
constexpr std::uint32_t IntegerText = 24;

std::uint32_t finish(char* text, char* end) {
    *end = '\0';
    return static_cast<std::uint32_t>(end - text);
}

// The separator stays: 100 with two decimals is "100.".
char* cutTrailingZeros(const char* stop, char* end) {
    while (end > stop && end[-1] == '0') --end;
    return end;
}

// --- Hexadecimal -------------------------------------------------------------------------------------------------

std::uint32_t formatHex(const FieldPlan& plan, const char* source, char* text) {
    constexpr char digits[] = "0123456789ABCDEF";
    char* next = text;
    if (plan.isQuoted) *next++ = '"';
    for (std::uint32_t at = 0; at < plan.bytes; ++at) {
        *next++ = digits[sign::highNibble(source[at])];
        *next++ = digits[sign::lowNibble(source[at])];
    }
    if (plan.isQuoted) *next++ = '"';
    return finish(text, next);
}

// --- Binary ------------------------------------------------------------------------------------------------------

// Filled from the right over width + 1 positions: the separator stands `decimals` positions from the end, missing
// decimals become zeros, and a sign follows the separator directly.
std::uint32_t formatBinaryDecimals(const FieldPlan& plan, const char* integer, const char* integerEnd, char* text) {
    const auto width = static_cast<std::int32_t>(plan.width);
    char positions[LargestBinary * 4];
    std::fill(positions, positions + width + 1, ' ');
    const char* rest = integerEnd;
    bool placed = false;
    std::int32_t position = width;
    for (; position >= 0; --position) {
        if (position == width - plan.decimals) {
            positions[position] = plan.decimalSeparator;
            placed = true;
        } else if (!placed && (rest == integer || rest[-1] == '-')) {
            positions[position] = '0';
        } else if (rest == integer) {
            break;
        } else {
            positions[position] = *--rest;
        }
    }
    if (plan.isFixed) return finish(text, std::copy(positions, positions + width + 1, text));
    const char* first = positions + (position + 1);
    char* end = cutTrailingZeros(first, positions + width + 1);
    if (end - first == 1 && *first == plan.decimalSeparator) return finish(text, text);
    return finish(text, std::copy(first, static_cast<const char*>(end), text));
}

std::uint32_t formatBinary(const FieldPlan& plan, const char* source, char* text) {
    char integer[IntegerText];
    const std::int64_t value = bytes::highFirstSigned(source, plan.bytes);
    const char* integerEnd = std::to_chars(integer, integer + IntegerText, value).ptr;
    if (plan.decimals > 0) return formatBinaryDecimals(plan, integer, integerEnd, text);
    char* next = text;
    if (plan.isFixed) {
        const auto padding = static_cast<std::int32_t>(plan.width) - (integerEnd - integer);
        if (padding > 0) next = std::fill_n(text, padding, ' ');
    }
    return finish(text, std::copy(static_cast<const char*>(integer), integerEnd, next));
}

// --- Zoned and packed --------------------------------------------------------------------------------------------

// An even index is the high nibble of its byte. Nibbles above 9 are not checked and give the characters behind '9'.
char packedDigit(const char* source, std::uint32_t index) {
    const char byte = source[index / 2];
    return static_cast<char>('0' + (index % 2 == 0 ? sign::highNibble(byte) : sign::lowNibble(byte)));
}

// The digits of a zoned or packed number one after the other; zeros behind the last.
class Digits {
public:
    Digits(const FieldPlan& plan, const char* source)
        : source_(source), packed_(plan.type == Packed), index_(plan.skipsPadNibble ? 1 : 0) {
        if (plan.bytes == 0) return;
        const char last = source[plan.bytes - 1];
        count_ = packed_ ? 2 * plan.bytes - 1 : plan.bytes;
        negative_ = sign::isNegative(packed_ ? sign::lowNibble(last) : sign::highNibble(last));
    }
    char next() {
        if (index_ >= count_) return '0';
        const std::uint32_t at = index_++;
        return packed_ ? packedDigit(source_, at) : static_cast<char>('0' + sign::lowNibble(source_[at]));
    }
    // A zero has no sign, whatever its last nibble says: "-" alone would be no number to whoever reads it.
    bool isNegative() const {
        if (!negative_) return false;
        for (Digits rest = *this; rest.index_ < rest.count_;)
            if (rest.next() != '0') return true;
        return false;
    }

private:
    const char* source_;
    bool packed_;
    std::uint32_t index_;
    bool negative_ = false;
    std::uint32_t count_ = 0;
};

// Sign position, then all digits with a point at its place: `width` positions.
bool rawText(const FieldPlan& plan, const char* source, char* text) {
    Digits digits(plan, source);
    const bool negative = digits.isNegative();
    text[0] = negative ? '-' : ' ';
    const auto width = static_cast<std::int32_t>(plan.width);
    const std::int32_t pointAt = plan.decimals > 0 ? width - plan.decimals - 1 : -1;
    for (std::int32_t at = 1; at < width; ++at) text[at] = at == pointAt ? '.' : digits.next();
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

std::uint32_t formatDecimal(const FieldPlan& plan, const char* source, char* text) {
    if (plan.width == 0) return finish(text, text);
    const bool negative = rawText(plan, source, text);
    return plan.isFixed ? toFixedForm(text, plan.width, negative, plan.decimalSeparator)
                        : toDelimitedForm(text, plan.width, plan.decimals, plan.decimalSeparator);
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

bool hasTextForm(const FieldPlan& plan) { return plan.type != Binary || plan.bytes <= LargestBinary; }

std::uint32_t formatNumericField(const FieldPlan& plan, const char* source, char* text) {
    switch (plan.type) {
        case Hex:
            return formatHex(plan, source, text);
        case Binary:
            return withZero(text, formatBinary(plan, source, text));
        case Zoned:
        case Packed:
            return withZero(text, formatDecimal(plan, source, text));
        default:
            return finish(text, text);
    }
}

}  // namespace record::to_pc

#include "record/to_pc/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

#include "bytes/byte_order.h"
#include "record/signs.h"

namespace record::to_pc {
namespace {

constexpr std::uint32_t IntegerText = 24;
constexpr std::ptrdiff_t Block = 16;          // digits copied at once
constexpr std::uint32_t LongestNumber = 255;  // bytes: a description tells the length in one

std::uint32_t finish(char* text, char* end) {
    *end = '\0';
    return static_cast<std::uint32_t>(end - text);
}

// The separator stays: 100 with two decimals is "100.".
template <class Character>
Character* withoutTrailingZeros(const char* stop, Character* end) {
    while (end > stop && end[-1] == '0') --end;
    return end;
}

// For each byte a character for its high and one for its low nibble.
using NibblePairs = std::array<char[2], 256>;

constexpr NibblePairs pairsOf(const char (&characters)[17]) {
    NibblePairs pairs = {};
    for (std::size_t byte = 0; byte < pairs.size(); ++byte) {
        pairs[byte][0] = characters[byte >> 4];
        pairs[byte][1] = characters[byte & 0x0F];
    }
    return pairs;
}

constexpr NibblePairs hexPairs = pairsOf("0123456789ABCDEF");
// Nibbles above 9 are not checked and give the characters behind '9'.
constexpr NibblePairs digitPairs = pairsOf("0123456789:;<=>?");

char* putPairs(const NibblePairs& pairs, const char* source, std::uint32_t bytes, char* next) {
    for (std::uint32_t at = 0; at < bytes; ++at, next += 2) std::memcpy(next, pairs[bytes::at(source, at)], 2);
    return next;
}

// --- Hexadecimal -------------------------------------------------------------------------------------------------

std::uint32_t formatHex(const FieldPlan& plan, const char* source, char* text) {
    char* next = text;
    if (plan.isQuoted) *next++ = '"';
    next = putPairs(hexPairs, source, plan.bytes, next);
    if (plan.isQuoted) *next++ = '"';
    return finish(text, next);
}

// --- Binary ------------------------------------------------------------------------------------------------------

// Filled from the right over width + 1 positions: the separator stands `decimals` positions from the end, missing
// decimals become zeros, and a sign follows the separator directly.
std::uint32_t formatBinaryDecimals(const FieldPlan& plan, const char* integer, const char* integerEnd, char* text) {
    const auto width = static_cast<std::int32_t>(plan.width);
    char positions[FieldPlan::LargestBinary * 4];
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
    const char* end = withoutTrailingZeros<const char>(first, positions + width + 1);
    if (end - first == 1 && *first == plan.decimalSeparator) return finish(text, text);
    return finish(text, std::copy(first, end, text));
}

// A value of 32 bits is written faster as one.
char* putInteger(std::int64_t value, std::uint32_t bytes, char* text) {
    if (bytes <= 4) return std::to_chars(text, text + IntegerText, static_cast<std::int32_t>(value)).ptr;
    return std::to_chars(text, text + IntegerText, value).ptr;
}

std::uint32_t formatBinary(const FieldPlan& plan, const char* source, char* text) {
    const std::int64_t value = bytes::highFirstSigned(source, plan.bytes);
    if (!plan.isFixed && plan.decimals == 0) return finish(text, putInteger(value, plan.bytes, text));
    char integer[IntegerText];
    const char* integerEnd = putInteger(value, plan.bytes, integer);
    if (plan.decimals > 0) return formatBinaryDecimals(plan, integer, integerEnd, text);
    const auto padding = static_cast<std::int32_t>(plan.width) - (integerEnd - integer);
    char* next = padding > 0 ? std::fill_n(text, padding, ' ') : text;
    return finish(text, std::copy(static_cast<const char*>(integer), integerEnd, next));
}

// --- Zoned and packed --------------------------------------------------------------------------------------------

// The digits of a zoned or packed number as characters. There are as many as the text has places for them; where it has
// more than the number, zeros stand behind.
class Digits {
public:
    Digits(const FieldPlan& plan, const char* source) : begin_(characters_), end_(characters_) {
        if (plan.bytes > 0) plan.type == Packed ? unpack(plan, source) : strip(plan, source);
        const auto decimals = static_cast<std::uint32_t>(plan.decimals);
        hasPoint_ = plan.decimals > 0 && decimals + 1 < plan.width;
        const char* const end = begin_ + (plan.width - 1 - (hasPoint_ ? 1 : 0));
        while (end_ < end) *end_++ = '0';
        point_ = hasPoint_ ? end_ - decimals : end_;
        // A zero has no sign, whatever its last nibble says: "-" alone would be no number to whoever reads it.
        negative_ = negative_ && std::any_of<const char*>(begin_, end_, [](char digit) { return digit != '0'; });
    }

    const char* begin() const { return begin_; }
    const char* point() const { return point_; }  // the first digit behind it; the end when there is none
    const char* end() const { return end_; }
    bool hasPoint() const { return hasPoint_; }
    bool isNegative() const { return negative_; }

private:
    void unpack(const FieldPlan& plan, const char* source) {
        end_ = putPairs(digitPairs, source, plan.bytes, characters_) - 1;
        if (plan.skipsPadNibble) ++begin_;
        negative_ = sign::isNegative(sign::lowNibble(source[plan.bytes - 1]));
    }
    void strip(const FieldPlan& plan, const char* source) {
        for (std::uint32_t at = 0; at < plan.bytes; ++at)
            *end_++ = static_cast<char>('0' + sign::lowNibble(source[at]));
        negative_ = sign::isNegative(sign::highNibble(source[plan.bytes - 1]));
    }

    char characters_[2 * LongestNumber + 2 + Block];
    const char* begin_;
    char* end_;
    const char* point_;
    bool hasPoint_;
    bool negative_ = false;
};

// In blocks, for which both sides have room: a call to copy a few digits would take longer than they do.
char* putDigits(const char* first, const char* end, char* next) {
    std::memcpy(next, first, Block);
    for (; end - first > Block; first += Block, next += Block) std::memcpy(next + Block, first + Block, Block);
    return next + (end - first);
}

// Over the whole width. Leading zeros become blanks, and the sign stands before the first significant digit.
std::uint32_t toFixedForm(const Digits& digits, char separator, char* text) {
    *text = ' ';
    char* next = putDigits(digits.begin(), digits.point(), text + 1);
    const char* const whole = next;
    if (digits.hasPoint()) {
        *next++ = separator;
        next = putDigits(digits.point(), digits.end(), next);
    }
    char* first = text + 1;
    while (first < whole && *first == '0') *first++ = ' ';
    if (digits.isNegative()) first[-1] = '-';
    return finish(text, next);
}

std::uint32_t toDelimitedForm(const Digits& digits, bool hasDecimals, char separator, char* text) {
    const char* first = digits.begin();
    while (first < digits.point() && *first == '0') ++first;
    char* next = text;
    if (digits.isNegative()) *next++ = '-';
    next = putDigits(first, digits.point(), next);
    if (!digits.hasPoint()) return finish(text, hasDecimals ? withoutTrailingZeros(text + 1, next) : next);
    const char* const end = withoutTrailingZeros(digits.point(), digits.end());
    if (next == text && end == digits.point()) return finish(text, text);  // a separator alone
    *next++ = separator;
    return finish(text, putDigits(digits.point(), end, next));
}

std::uint32_t formatDecimal(const FieldPlan& plan, const char* source, char* text) {
    if (plan.width == 0) return finish(text, text);
    const Digits digits(plan, source);
    return plan.isFixed ? toFixedForm(digits, plan.decimalSeparator, text)
                        : toDelimitedForm(digits, plan.decimals > 0, plan.decimalSeparator, text);
}

// What is left empty or blank is a zero.
std::uint32_t withZero(char* text, std::uint32_t length) {
    if (length == 0) return finish(text, std::fill_n(text, 1, '0'));
    if (text[length - 1] == ' ') text[length - 1] = '0';
    return length;
}

}  // namespace

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

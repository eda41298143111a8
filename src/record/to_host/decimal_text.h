#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace record::to_host {

// How numbers are written in a field's text.
struct NumberGrammar {
    char separator;             // decimal point
    char thousands;             // skipped wherever it stands; 0 = none
    bool blanksInside;          // blanks between digits are skipped
    bool signsInside;           // further "-" in front of the digits are places without a digit
    std::uint8_t largestDigit;  // 9, or 15 where the characters behind '9' stand for nibbles above 9
};

// A decimal number, digit by digit: blanks, "-", digits with at most one decimal point, blanks. Every part may be
// missing; nothing at all is a zero.
class DecimalText {
public:
    // False when the text is no number. The character at `pointAt` is the decimal point, whatever it is.
    static constexpr std::size_t NoFixedPoint = static_cast<std::size_t>(-1);
    bool read(std::string_view text, const NumberGrammar& grammar, std::size_t pointAt = NoFixedPoint);

    bool isNegative() const { return negative_; }
    bool hasPoint() const { return pointSeen_; }
    bool isZero() const;

    // Whether `places` digits, `decimals` of them behind the point, hold the number without losing a digit.
    bool fits(std::int32_t places, std::int32_t decimals) const;
    // The digit that stands for 10 to the power.
    std::uint8_t digitAt(std::int32_t power) const {
        const std::int32_t at = integerDigits_ - 1 - power;
        return at >= 0 && at < count_ ? digits_[at] : 0;
    }
    // The highest power that has a digit.
    std::int32_t highestPower() const { return integerDigits_ - 1; }

private:
    // The longest host number, 255 packed bytes, has 509 digits.
    static constexpr std::int32_t Capacity = 512;

    bool putCharacter(char character, const NumberGrammar& grammar);
    bool putPoint();
    bool put(std::uint8_t digit);

    std::uint8_t digits_[Capacity];  // without leading zeros of the integer part
    std::int32_t count_ = 0;
    std::int32_t integerDigits_ = 0;
    bool negative_ = false;
    bool digitSeen_ = false;
    bool pointSeen_ = false;
    bool ended_ = false;  // a blank stood behind the number
};

}  // namespace record::to_host

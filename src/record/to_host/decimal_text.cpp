#include "record/to_host/decimal_text.h"

#include <algorithm>

namespace record::to_host {

bool DecimalText::read(std::string_view text, const NumberGrammar& grammar, std::size_t pointAt) {
    for (std::size_t at = 0; at < text.size(); ++at)
        if (!(at == pointAt ? putPoint() : putCharacter(text[at], grammar))) return false;
    return true;
}

bool DecimalText::putCharacter(char character, const NumberGrammar& grammar) {
    if (character == ' ') {
        ended_ = ended_ || (!grammar.blanksInside && (digitSeen_ || pointSeen_));
        return true;
    }
    if (character == grammar.separator) return putPoint();
    if (character == '-') {
        if (digitSeen_ || pointSeen_ || (negative_ && !grammar.signsInside)) return false;
        negative_ = true;
        return true;
    }
    if (character == grammar.thousands && character != '\0') return true;
    const auto digit = static_cast<std::uint8_t>(character - '0');
    return digit <= grammar.largestDigit && !ended_ && put(digit);
}

bool DecimalText::putPoint() {
    if (pointSeen_ || ended_) return false;
    pointSeen_ = true;
    return true;
}

// Zeros that change nothing are never a matter of room.
bool DecimalText::put(std::uint8_t digit) {
    digitSeen_ = true;
    if (!pointSeen_ && integerDigits_ == 0 && digit == 0) return true;
    if (count_ == Capacity) return pointSeen_ && digit == 0;
    digits_[count_++] = digit;
    if (!pointSeen_) ++integerDigits_;
    return true;
}

bool DecimalText::isZero() const {
    return std::all_of(digits_, digits_ + count_, [](std::uint8_t digit) { return digit == 0; });
}

bool DecimalText::fits(std::int32_t places, std::int32_t decimals) const {
    for (std::int32_t at = 0; at < count_; ++at) {
        const std::int32_t power = integerDigits_ - 1 - at;
        if (digits_[at] != 0 && (power >= places - decimals || power < -decimals)) return false;
    }
    return true;
}

}  // namespace record::to_host

#include "record/to_host/number_text.h"

#include <algorithm>

namespace record::to_host {
namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

// The two sides of the decimal separator.
struct Parts {
    std::string_view integer;
    std::string_view fraction;
    bool isSound;  // there is no second separator

    Parts(std::string_view text, char separator) : integer(text.substr(0, text.find(separator))) {
        fraction = text.substr(std::min(integer.size() + 1, text.size()));
        isSound = fraction.find(separator) == std::string_view::npos;
    }
};

// A "-" in front of the digits takes a digit's place; behind one it would change what was read before.
bool hasMisplacedSign(std::string_view number) {
    const std::size_t digit = number.find_first_of("0123456789:;<=>?");
    return digit != std::string_view::npos && number.find('-', digit) != std::string_view::npos;
}

// Places the characters so that they end in front of position `end`. The first position of all is that of the sign: a
// digit there, which would be lost, a "+" or a comma does not fit. Leading zeros may be left out.
bool placeRight(std::string_view characters, std::uint32_t end, WorkingText& working) {
    for (; !characters.empty(); characters.remove_suffix(1)) {
        const char character = characters.back();
        if (end <= 1 && character == '0' && characters.find_first_not_of("-0") == std::string_view::npos) continue;
        if (end == 0) return false;
        --end;
        const bool isLost = (character >= '0' && character <= '?') || character == '+' || character == ',';
        if (end == 0 && isLost) return false;
        working.characters[end] = character;
    }
    return true;
}

}  // namespace

void fixedText(std::string_view text, const FieldPlan& plan, std::uint32_t width, WorkingText& working) {
    working.length = width;
    working.decimals = static_cast<std::uint32_t>(plan.decimals);
    working.hasSign = width == plan.width;
    text = text.substr(0, width);
    std::fill(std::copy(text.begin(), text.end(), working.characters), working.characters + width, ' ');
}

bool delimitedText(std::string_view text, const FieldPlan& plan, WorkingText& working) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::string_view number = text.substr(0, text.find(' '));
    // Blanks may stand between the number and the delimiter, and nothing else.
    if (text.find_first_not_of(' ', number.size()) != std::string_view::npos) return false;
    const Parts parts(number, plan.decimalSeparator);
    if (!parts.isSound || hasMisplacedSign(number)) return false;
    fixedText({}, plan, plan.width, working);
    if (working.decimals == 0) {
        const bool isWhole = parts.fraction.find_first_not_of('0') == std::string_view::npos;
        return placeRight(isWhole ? parts.integer : number, working.length, working);
    }
    if (!working.hasPoint() || !placeRight(parts.integer, working.pointAt(), working)) return false;
    char* const fraction = working.characters + working.pointAt() + 1;
    std::fill_n(fraction, working.decimals, '0');
    std::copy_n(parts.fraction.data(), std::min<std::size_t>(parts.fraction.size(), working.decimals), fraction);
    return true;
}

bool readBinary(std::string_view text, const FieldPlan& plan, bool isFixed, BinaryNumber& number) {
    const Parts parts(text, plan.decimalSeparator);
    const auto decimals = static_cast<std::size_t>(plan.decimals);
    bool isNumber = parts.isSound;
    for (const char character : parts.integer) isNumber = isNumber && number.put(character);
    std::size_t digits = 0;
    for (const char character : parts.fraction) {
        if (isDigit(character) && digits++ >= decimals) continue;
        isNumber = isNumber && number.put(character);
    }
    // Every character behind the separator counts as a place that is taken, blanks included.
    for (std::size_t place = parts.fraction.size(); place < decimals && !isFixed; ++place)
        isNumber = isNumber && number.put('0');
    return isNumber;
}

}  // namespace record::to_host

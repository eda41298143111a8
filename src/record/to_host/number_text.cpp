#include "record/to_host/number_text.h"

#include <algorithm>

namespace record::to_host {
namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

// Whether a blank ends the number, or stands among its characters.
enum class Blank { Ends, Belongs };

// What one walk over the text of a number finds: the number, and the two sides of its decimal separator.
struct Number {
    std::string_view all, integer, fraction;
    bool isSound = true;       // there is no second separator
    std::size_t lastSign = 0;  // the place of the last "-"

    Number(std::string_view text, char separator, Blank blank) {
        std::size_t end = 0, point = std::string_view::npos;
        for (; end < text.size() && (text[end] != ' ' || blank == Blank::Belongs); ++end) {
            if (text[end] == '-') lastSign = end;
            if (text[end] != separator) continue;
            if (point != std::string_view::npos) isSound = false;
            point = std::min(point, end);
        }
        all = text.substr(0, end);
        integer = all.substr(0, point);
        fraction = all.substr(std::min(integer.size() + 1, end));
    }
    // A "-" in front of the digits takes a digit's place; behind one it would change what was read before.
    bool hasMisplacedSign() const {
        return lastSign > 0 && all.substr(0, lastSign).find_first_of("0123456789:;<=>?") != std::string_view::npos;
    }
};

// Places the characters so that they end in front of position `end`. The first position of all is that of the sign: a
// digit there, which would be lost, a "+" or a comma does not fit. Leading zeros may be left out.
bool placeRight(std::string_view characters, std::uint32_t end, WorkingText& working) {
    if (characters.size() < end) {
        std::copy(characters.begin(), characters.end(), working.characters + (end - characters.size()));
        return true;
    }
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
    fixedText({}, plan, plan.width, working);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const Number number(text, plan.decimalSeparator, Blank::Ends);
    // Blanks may stand between the number and the delimiter, and nothing else.
    if (text.find_first_not_of(' ', number.all.size()) != std::string_view::npos) return false;
    if (!number.isSound || number.hasMisplacedSign()) return false;
    if (working.decimals == 0) {
        const bool isWhole = number.fraction.find_first_not_of('0') == std::string_view::npos;
        return placeRight(isWhole ? number.integer : number.all, working.length, working);
    }
    if (!working.hasPoint() || !placeRight(number.integer, working.pointAt(), working)) return false;
    char* const fraction = working.characters + working.pointAt() + 1;
    std::fill_n(fraction, working.decimals, '0');
    std::copy_n(number.fraction.data(), std::min<std::size_t>(number.fraction.size(), working.decimals), fraction);
    return true;
}

bool readBinary(std::string_view text, const FieldPlan& plan, bool isFixed, BinaryNumber& number) {
    const Number parts(text, plan.decimalSeparator, Blank::Belongs);
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

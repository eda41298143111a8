#include "record/to_host/field_text.h"

#include <algorithm>

#include "Z7XFRPCS/settings.h"
#include "record/to_host/host_number.h"
#include "services/owned.h"
#include "services/session.h"
#include "text/double_byte.h"

namespace record::to_host {
namespace {

// The text up to the delimiter or the end of the record. In BasicSequential files a comma delimits too, unless the text
// is a number and the comma its decimal separator.
std::string_view delimitedText(const FileRules& rules, std::string_view text, bool isNumber) {
    char delimiters[2] = {rules.listSeparator, rules.listSeparator};
    if (rules.type.form == settings::RecordForm::Tuples) {
        delimiters[0] = '\r';
        delimiters[1] = '\n';
    } else if (rules.type.separator == settings::Separator::Tab) {
        delimiters[0] = delimiters[1] = '\t';
    } else if (rules.type.separator == settings::Separator::Comma && !(isNumber && rules.decimalSeparator == ',')) {
        delimiters[1] = ',';
    }
    std::size_t end = 0;
    while (end < text.size() && text[end] != delimiters[0] && text[end] != delimiters[1]) ++end;
    return text.substr(0, end);
}

// --- Hexadecimal -------------------------------------------------------------------------------------------------

// What may stand between the digits and the next field: nothing in a fixed position, anything behind a closing quote,
// blanks otherwise.
bool takeHexEnd(const FileRules& rules, bool quoted, std::string_view rest, std::size_t& consumed) {
    if (rules.type.isFixed() || (quoted && rest.empty())) return true;
    if (quoted && rest[0] != '"') return false;
    const std::string_view between = delimitedText(rules, rest, false);
    consumed += between.size();
    return quoted || text::trimmed(between).empty();
}

ConvertedField convertHex(const FileRules& rules, const FieldPlan& plan, std::string_view text, char* destination) {
    // The writer quotes these digits for two types only; spreadsheet programs quote them in comma-separated files too.
    const bool quoted = !plan.isFixed && text.starts_with('"');
    const std::uint32_t count = 2 * plan.bytes;
    std::string_view digits = text.substr(quoted ? 1 : 0);
    if (digits.size() < count) return {};
    std::size_t consumed = count + (quoted ? 1 : 0);
    if (!takeHexEnd(rules, quoted, digits.substr(count), consumed)) return {};
    // The digits with two quotes and a terminating zero.
    const auto work = services::OwnedBytes::make(count + 3, false);
    if (!work) return {};
    *std::copy_n(digits.data(), count, work.data()) = '\0';
    if (!hexTextToBytes({work.data(), count}, destination)) return {};
    return {plan.bytes, consumed};
}

// --- Numbers -----------------------------------------------------------------------------------------------------

NumberGrammar grammarOf(const FieldPlan& plan) {
    const char separator = plan.decimalSeparator;
    if (plan.type != Binary) return {separator, '\0', false, true, 15};
    return {separator, separator == ',' ? '.' : ',', true, false, 9};
}

// Whether the character in the decimal place is a mark, whatever it looks like. A blank is one in front of digits only.
bool isMark(std::string_view text, std::size_t at) {
    if (text[at] == ' ') return !text::trimmed(text.substr(at)).empty() && !text::trimmed(text.substr(0, at)).empty();
    return text[at] != '-' && (text[at] < '0' || text[at] > '?');
}

// A fixed text has its decimal point in a fixed place, where any mark will do. A number without a mark there is taken
// as it reads, and then has to end in front of that place, or behind a point of its own and in front of the text's last
// position: otherwise nobody can tell 10 from 0.10, or what was cut off.
bool readFixed(const FieldPlan& plan, std::string_view text, std::uint32_t width, DecimalText& number) {
    const std::int64_t place = static_cast<std::int64_t>(width) - plan.decimals - 1;
    if (plan.type == Binary || plan.decimals <= 0 || place < 0 || place >= static_cast<std::int64_t>(text.size()))
        return number.read(text, grammarOf(plan));
    const auto pointAt = static_cast<std::size_t>(place);
    if (isMark(text, pointAt)) return number.read(text, grammarOf(plan), pointAt);
    if (!number.read(text, grammarOf(plan))) return false;
    const std::size_t length = text::trimmedEnd(text).size();
    return number.isZero() || length < (number.hasPoint() ? width : pointAt + 1);
}

bool store(const FieldPlan& plan, const DecimalText& number, char* destination) {
    switch (plan.type) {
        case Binary:
            return toBinary(number, plan.decimals, destination, plan.bytes);
        case Zoned:
            return toZoned(number, plan.decimals, destination, plan.bytes);
        default: {
            // All positions of the text form but those of sign and point: its even precision is accounted for.
            const std::uint32_t digits = plan.width - (plan.decimals > 0 ? 2 : 1);
            return toPacked(number, plan.decimals, destination, plan.bytes, digits);
        }
    }
}

ConvertedField convertFixedNumber(const FieldConversion& conversion, const FieldPlan& plan, std::string_view text,
                                  char* destination) {
    // The text of a binary number has its point in addition to its width.
    const std::uint32_t point = plan.type == Binary && plan.decimals > 0 ? 1 : 0;
    const std::uint32_t width = fieldTextWidth(conversion, plan, text.empty() ? ' ' : text[0]) + point;
    DecimalText number;
    if (!readFixed(plan, text.substr(0, width), width, number) || !store(plan, number, destination)) return {};
    return {plan.bytes, width};
}

ConvertedField convertDelimitedNumber(const FileRules& rules, const FieldPlan& plan, std::string_view text,
                                      char* destination) {
    text = delimitedText(rules, text, true);
    DecimalText number;
    if (!number.read(text, grammarOf(plan)) || !store(plan, number, destination)) return {};
    return {plan.bytes, text.size()};
}

bool hasSignPosition(const FieldConversion& conversion, const FieldPlan& plan, char firstCharacter) {
    if (firstCharacter == '\0' || !plan.isFixed) return true;
    if (services::GetSetting(conversion.settings, zhst::setting::NoSignPosition) == 1) return false;
    return firstCharacter == ' ' || firstCharacter == '-';
}

}  // namespace

std::uint32_t fieldTextWidth(const FieldConversion& conversion, const FieldPlan& plan, char firstCharacter) {
    if (plan.type != Zoned && plan.type != Packed) return plan.width;
    return hasSignPosition(conversion, plan, firstCharacter) || plan.width == 0 ? plan.width : plan.width - 1;
}

ConvertedField convertFieldText(const FieldConversion& conversion, const FieldPlan& plan, std::string_view text,
                                char* destination) {
    if (plan.type == Hex) return convertHex(conversion.rules, plan, text, destination);
    return plan.isFixed ? convertFixedNumber(conversion, plan, text, destination)
                        : convertDelimitedNumber(conversion.rules, plan, text, destination);
}

}  // namespace record::to_host

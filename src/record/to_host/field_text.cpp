#include "record/to_host/field_text.h"

#include "Z7XFRPCS/settings.h"
#include "record/to_host/number_text.h"
#include "services/session.h"
#include "text/double_byte.h"

namespace record::to_host {
namespace {

std::string_view upTo(const Delimiters& delimiters, std::string_view text) {
    std::size_t end = 0;
    while (end < text.size() && text[end] != delimiters.first && text[end] != delimiters.second) ++end;
    return text.substr(0, end);
}

// --- Hexadecimal -------------------------------------------------------------------------------------------------

// What may stand between the digits and the next field: nothing in a fixed position, anything behind a closing quote,
// blanks otherwise.
bool takeHexEnd(const FileRules& rules, bool quoted, std::string_view rest, std::size_t& consumed) {
    if (rules.type.isFixed() || (quoted && rest.empty())) return true;
    if (quoted && rest[0] != '"') return false;
    const std::string_view between = upTo(rules.hexDelimiters, rest);
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
    if (!hexTextToBytes(digits.substr(0, count), destination)) return {};
    return {plan.bytes, consumed};
}

// --- Numbers -----------------------------------------------------------------------------------------------------

bool store(const WorkingText& working, const FieldPlan& plan, char* destination) {
    return plan.type == Zoned ? textToZoned(working, destination, plan.bytes)
                              : textToPacked(working, destination, plan.bytes);
}

bool storeBinary(std::string_view text, const FieldPlan& plan, char* destination) {
    BinaryNumber number(plan.width, plan.isFixed);
    return readBinary(text, plan, plan.isFixed, number) && number.store(destination, plan.bytes);
}

// Characters that the text takes. That of a binary number has its point in addition to its width. A zoned or packed one
// that begins with neither a blank nor "-" (or any, with the setting NoSignPosition 1) has no sign position, and is one
// narrower.
std::uint32_t fixedWidth(const FieldConversion& conversion, const FieldPlan& plan, std::string_view text) {
    if (plan.type == Binary) return plan.width + (plan.decimals > 0 ? 1 : 0);
    const char first = text.empty() ? ' ' : text[0];
    const bool hasSignPosition =
        first == '\0' || (services::GetSetting(conversion.settings, zhst::setting::NoSignPosition) != 1 &&
                          (first == ' ' || first == '-'));
    return hasSignPosition || plan.width == 0 ? plan.width : plan.width - 1;
}

ConvertedField convertFixedNumber(const FieldConversion& conversion, const FieldPlan& plan, std::string_view text,
                                  char* destination) {
    const std::uint32_t width = fixedWidth(conversion, plan, text);
    if (plan.type == Binary) {
        if (!storeBinary(text.substr(0, width), plan, destination)) return {};
    } else {
        WorkingText working;
        fixedText(text, plan, width, working);
        if (!store(working, plan, destination)) return {};
    }
    return {plan.bytes, width};
}

ConvertedField convertDelimitedNumber(const FileRules& rules, const FieldPlan& plan, std::string_view text,
                                      char* destination) {
    text = upTo(rules.numberDelimiters, text);
    if (plan.type == Binary) {
        if (!storeBinary(text, plan, destination)) return {};
    } else {
        WorkingText working;
        if (!delimitedText(text, plan, working) || !store(working, plan, destination)) return {};
    }
    return {plan.bytes, text.size()};
}

}  // namespace

ConvertedField convertFieldText(const FieldConversion& conversion, const FieldPlan& plan, std::string_view text,
                                char* destination) {
    if (plan.type == Hex) return convertHex(conversion.rules, plan, text, destination);
    return plan.isFixed ? convertFixedNumber(conversion, plan, text, destination)
                        : convertDelimitedNumber(conversion.rules, plan, text, destination);
}

}  // namespace record::to_host

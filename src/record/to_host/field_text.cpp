#include "record/to_host/field_text.h"

#include <algorithm>

#include "record/to_host/host_number.h"
#include "services/owned.h"
#include "settings/pc_file_types.h"
#include "text/double_byte.h"

namespace record::to_host {
namespace {

using record::HostField;

// The text up to the delimiter or the end of the record. In BasicSequential files a comma delimits too, unless the text
// is a number and the comma its decimal separator.
std::string_view delimitedText(const settings::TransferSettings& settings, std::string_view text, bool isNumber) {
    char delimiters[2] = {settings.listSeparator, settings.listSeparator};
    if (settings.sendFileType == settings::TabDelimited) {
        delimiters[0] = delimiters[1] = '\t';
    } else if (settings.sendFileType == settings::Dif) {
        delimiters[0] = '\r';
        delimiters[1] = '\n';
    } else if (settings.sendFileType == settings::BasicSequential && !(isNumber && settings.decimalSeparator == ',')) {
        delimiters[1] = ',';
    }
    std::size_t end = 0;
    while (end < text.size() && text[end] != delimiters[0] && text[end] != delimiters[1]) ++end;
    return text.substr(0, end);
}

bool isFixed(const HostField& field) { return field.transferSettings().sendFileType == settings::AsciiText; }

// --- Hexadecimal -------------------------------------------------------------------------------------------------

// What may stand between the digits and the next field: nothing in a fixed position, anything behind a closing quote,
// blanks otherwise.
bool takeHexEnd(const HostField& field, bool quoted, std::string_view rest, std::size_t& consumed) {
    if (isFixed(field) || (quoted && rest.empty())) return true;
    if (quoted && rest[0] != '"') return false;
    const std::string_view between = delimitedText(field.transferSettings(), rest, false);
    consumed += between.size();
    return quoted || text::trimmed(between).empty();
}

ConvertedField convertHex(const HostField& field, std::string_view text, char* destination) {
    // The writer quotes these digits for two types only; spreadsheet programs quote them in comma-separated files too.
    const bool quoted = !isFixed(field) && text.starts_with('"');
    const std::uint32_t bytes = field.fieldLength().bytes;
    const std::uint32_t count = 2 * bytes;
    std::string_view digits = text.substr(quoted ? 1 : 0);
    if (digits.size() < count) return {};
    std::size_t consumed = count + (quoted ? 1 : 0);
    if (!takeHexEnd(field, quoted, digits.substr(count), consumed)) return {};
    // The digits with two quotes and a terminating zero.
    const auto work = services::OwnedBytes::make(count + 3, false);
    if (!work) return {};
    *std::copy_n(digits.data(), count, work.data()) = '\0';
    if (!hexTextToBytes({work.data(), count}, destination)) return {};
    return {bytes, consumed};
}

// --- Numbers -----------------------------------------------------------------------------------------------------

NumberGrammar grammarOf(const HostField& field) {
    const char separator = field.transferSettings().decimalSeparator;
    if (field.type() != record::Binary) return {separator, '\0', false, true, 15};
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
bool readFixed(const HostField& field, std::string_view text, std::uint32_t width, DecimalText& number) {
    const std::int32_t decimals = field.fieldLength().decimals;
    const std::int64_t place = static_cast<std::int64_t>(width) - decimals - 1;
    if (field.type() == record::Binary || decimals <= 0 || place < 0 || place >= static_cast<std::int64_t>(text.size()))
        return number.read(text, grammarOf(field));
    const auto pointAt = static_cast<std::size_t>(place);
    if (isMark(text, pointAt)) return number.read(text, grammarOf(field), pointAt);
    if (!number.read(text, grammarOf(field))) return false;
    const std::size_t length = text::trimmedEnd(text).size();
    return number.isZero() || length < (number.hasPoint() ? width : pointAt + 1);
}

bool store(const HostField& field, const DecimalText& number, char* destination) {
    const record::FieldLength length = field.fieldLength();
    switch (field.type()) {
        case record::Binary:
            return toBinary(number, length.decimals, destination, length.bytes);
        case record::Zoned:
            return toZoned(number, length.decimals, destination, length.bytes);
        default: {
            // All positions of the text form but those of sign and point: its even precision is accounted for.
            const std::uint32_t digits = field.fieldTextWidth('\0') - (length.decimals > 0 ? 2 : 1);
            return toPacked(number, length.decimals, destination, length.bytes, digits);
        }
    }
}

ConvertedField convertFixedNumber(const HostField& field, std::string_view text, char* destination) {
    const record::FieldLength length = field.fieldLength();
    // The text of a binary number has its point in addition to its width.
    const std::uint32_t point = field.type() == record::Binary && length.decimals > 0 ? 1 : 0;
    const std::uint32_t width = field.fieldTextWidth(text.empty() ? ' ' : text[0]) + point;
    DecimalText number;
    if (!readFixed(field, text.substr(0, width), width, number) || !store(field, number, destination)) return {};
    return {length.bytes, width};
}

ConvertedField convertDelimitedNumber(const HostField& field, std::string_view text, char* destination) {
    text = delimitedText(field.transferSettings(), text, true);
    DecimalText number;
    if (!number.read(text, grammarOf(field)) || !store(field, number, destination)) return {};
    return {field.fieldLength().bytes, text.size()};
}

}  // namespace

ConvertedField convertFieldText(const HostField& field, std::string_view text, char* destination) {
    if (field.type() == record::Hex) return convertHex(field, text, destination);
    if (!field.isNumber()) return {};
    return isFixed(field) ? convertFixedNumber(field, text, destination)
                          : convertDelimitedNumber(field, text, destination);
}

}  // namespace record::to_host

#include "checking/refusal_reason.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "checking/host_text.h"
#include "checking/number.h"

namespace checking {
namespace {

// Of the PC's code page, as a person sees it.
std::string shown(const PcFileForm& form, std::string_view text) {
    return form.pcPage ? form.pcPage->decode(text) : std::string(text);
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::string counted(std::size_t count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

// What the first character says that has no place in a number.
std::string strangerReason(const PcFileForm& form, std::string_view text, std::size_t place) {
    const char stranger = text[place];
    const std::string decimal = {'"', form.decimalSeparator, '"'};
    if (stranger == '\0') return "a zero byte stands in the number";
    if (text.starts_with("\xEF\xBB\xBF")) return "a byte order mark stands in front of the number";
    if (stranger == ' ') return "a blank stands inside the number";
    if (stranger == '+') return "a number has no \"+\"";
    if (stranger == '.' || stranger == ',') {
        return std::string("\"") + stranger + "\" is not the decimal separator, which is " + decimal;
    }
    const bool isExponent = (stranger == 'e' || stranger == 'E') && place > 0 && isDigit(text[place - 1]);
    if (isExponent && place + 1 < text.size()) return "the number has an exponent";
    const bool isLead = form.pcPage && form.pcPage->isLeadByte(static_cast<std::uint8_t>(stranger));
    const std::string character = shown(form, text.substr(place, isLead ? 2 : 1));
    const bool isPlain = stranger > ' ' && stranger <= '~';
    return isPlain ? "\"" + character + "\" is no digit" : codePoint(character) + " is no digit";
}

// A binary number takes 32 bits, or 64 in a field of more than 4 bytes, whatever of them the field then keeps.
std::string rangeReason(const PcFileForm& form, const HostColumn& column, std::string_view text) {
    const auto number = readDecimal(text, form.decimalSeparator, true);
    if (!number) return {};
    std::string units = number->integer + number->fraction.substr(0, column.decimals);
    units.append(column.decimals - std::min<std::size_t>(number->fraction.size(), column.decimals), '0');
    std::uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(units.data(), units.data() + units.size(), magnitude);
    const bool isWide = column.length > 4;
    const std::uint64_t smallest = std::uint64_t{1} << (isWide ? 63 : 31);
    const std::uint64_t largest = number->isNegative ? smallest : smallest - 1;
    if (error == std::errc() && magnitude <= largest) return {};
    return std::string("the number is outside what ") + (isWide ? "64" : "32") + " bits hold";
}

std::string numberReason(const PcFileForm& form, const HostColumn& column, std::string_view whole) {
    const std::string_view text = withoutBlanks(whole);
    std::size_t separators = 0, digits = 0, fraction = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        if (character == form.decimalSeparator) {
            if (++separators > 1) return "there are two decimal separators";
        } else if (character == '-') {
            if (digits + fraction > 0) return "the \"-\" stands behind a digit";
            if (at > 0) return "there are two signs";
        } else if (!isDigit(character)) {
            if (column.type != column_type::Binary || (character != '.' && character != ',' && character != ' '))
                return strangerReason(form, text, at);
        } else if (separators > 0) {
            fraction += 1;
        } else if (digits > 0 || character != '0') {
            ++digits;
        }
    }
    const std::uint32_t room = integerDigits(column);
    const std::string before = column.decimals > 0 || separators > 0 ? " before the decimal separator" : "";
    if (digits > room) return counted(digits, "digit") + before + ", the field has " + std::to_string(room);
    if (column.type == column_type::Binary) return rangeReason(form, column, text);
    if (fraction > 0 && column.decimals == 0) return "the number has a fraction, and the field no decimals";
    const bool isMisplaced = form.isFixed() && column.decimals > 0 && fraction != column.decimals;
    return isMisplaced ? "in fixed positions a number ends at the right, with " + counted(column.decimals, "decimal")
                       : std::string();
}

std::string hexReason(const PcFileForm& form, const HostColumn& column, std::string_view text) {
    const std::string_view digits = withoutBlanks(text);
    if (digits.size() != 2 * column.length)
        return counted(digits.size(), "hexadecimal digit") + ", the field has " + std::to_string(2 * column.length);
    for (std::size_t at = 1; at < digits.size(); at += 2) {
        if (!isDigit(digits[at]))
            return "of hexadecimal bytes only F0 to F9 and 40 can be sent, not " +
                   shown(form, digits.substr(at - 1, 2));
    }
    return {};
}

std::string bytesReason(const HostColumn& column, std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const auto byte = static_cast<std::uint8_t>(bytes[at]);
        const bool isLast = at + 1 == bytes.size();
        const bool isBad = column.type == column_type::Zoned ? (byte & 0x0F) > 9 && !isLast
                                                             : byte >> 4 > 9 || ((byte & 0x0F) > 9 && !isLast);
        if (isBad) {
            constexpr char Digits[] = "0123456789ABCDEF";
            return std::string("byte ") + std::to_string(at + 1) + ", " + Digits[byte >> 4] + Digits[byte & 0x0F] +
                   ", is no digit";
        }
    }
    return {};
}

}  // namespace

std::string refusalReason(const PcFileForm& form, const HostColumn& column, const FieldText& field) {
    if (column.length == 0) return "the host gives the field no bytes";
    if (form.form == RecordForm::Tuples) {
        if (field.isMissing) return "the row ends before this value";
        if (field.isWrongKind)
            return column.isNumber() ? "a text stands where the host has a number"
                                     : "a number stands where the host has a text";
        if (!field.behind.empty() && column.isNumber()) return "the cell has no value: " + shown(form, field.behind);
    }
    if (form.form == RecordForm::Binary) {
        const bool hasDigits = column.type == column_type::Zoned || column.type == column_type::Packed;
        return hasDigits ? bytesReason(column, field.text) : std::string();
    }
    if (column.type == column_type::Hex)
        return field.isMissing ? "the record ends before this field" : hexReason(form, column, field.text);
    if (!column.isNumber()) return {};
    if (field.isQuoted) return "a number stands without quotes";
    return numberReason(form, column, field.text);
}

}  // namespace checking

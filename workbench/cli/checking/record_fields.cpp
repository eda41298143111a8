#include "checking/record_fields.h"

#include <algorithm>

namespace checking {
namespace {

std::string_view takeLine(std::string_view& rest) {
    const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end);
    if (rest.starts_with("\r\n"))
        rest.remove_prefix(2);
    else if (!rest.empty())
        rest.remove_prefix(1);
    return line;
}

// Where the text of a tuple ends that begins with a quote: at one that is not doubled and ends its line, so that line
// ends may stand inside. Nowhere, npos, when a single quote begins a line before, which is that of another value.
std::size_t closingQuote(std::string_view text) {
    const auto isLineEnd = [&](std::size_t at) { return at >= text.size() || text[at] == '\r' || text[at] == '\n'; };
    std::size_t quote = text.find('"', 1);
    while (quote != std::string_view::npos && !isLineEnd(quote + 1)) {
        const bool isDoubled = text[quote + 1] == '"';
        if (!isDoubled && isLineEnd(quote - 1)) return std::string_view::npos;
        quote = text.find('"', quote + (isDoubled ? 2 : 1));
    }
    return quote;
}

// A sign and the digits that so many bytes may give.
std::uint32_t binaryWidth(std::uint32_t bytes) { return bytes <= 2 ? 6 : bytes <= 4 ? 11 : 20; }

bool hasPadNibble(const HostColumn& column) {
    return column.type == column_type::Packed && column.digits > 0 && column.digits + 2 == 2 * column.length;
}

}  // namespace

std::string FieldText::plain(const PcFileForm& form) const {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        result += text[at];
        const bool isDoubled = isQuoted && form.doublesQuotes && text[at] == '"';
        if (isDoubled && at + 1 < text.size() && text[at + 1] == '"') ++at;
    }
    return result;
}

RecordFields::RecordFields(const PcFileForm& form, const std::vector<HostColumn>& columns)
    : form_(form),
      columns_(columns),
      hasLeadBytes_(form.pcPage && form.pcPage->isDoubleByte()),
      fields_(columns.size()) {}

void RecordFields::split(std::string_view record) {
    surplus_ = {};
    if (form_.wholeLines) {
        std::fill(fields_.begin(), fields_.end(), FieldText{record, {}});
    } else if (form_.form == RecordForm::Tuples) {
        splitTuple(record);
    } else if (form_.form == RecordForm::Binary) {
        splitBytes(record);
    } else if (form_.isFixed()) {
        splitFixed(record);
    } else {
        splitDelimited(record);
    }
}

void RecordFields::missFrom(std::size_t index) {
    for (; index < fields_.size(); ++index) {
        fields_[index] = {};
        fields_[index].isMissing = true;
    }
}

// --- Delimited -----------------------------------------------------------------------------------------------------

void RecordFields::splitDelimited(std::string_view rest) {
    for (std::size_t at = 0; at < fields_.size(); ++at) {
        if (at > 0) {
            if (rest.empty()) return missFrom(at);
            rest.remove_prefix(1);
        }
        FieldText& field = fields_[at] = {};
        if (rest.starts_with('"')) {
            takeQuoted(rest, field);
            continue;
        }
        const std::size_t end = endOf(rest, columns_[at].isNumber() || columns_[at].type == column_type::Hex);
        field.text = rest.substr(0, end);
        rest.remove_prefix(end);
    }
    surplus_ = rest;
}

// A quote inside stands twice; in BasicSequential files it stands alone, and the last one is in front of the separator.
void RecordFields::takeQuoted(std::string_view& rest, FieldText& field) const {
    field.isQuoted = true;
    rest.remove_prefix(1);
    std::size_t quote = rest.find('"');
    for (; quote != std::string_view::npos; quote = rest.find('"', quote + 1)) {
        if (quote + 1 == rest.size()) break;
        if (!form_.doublesQuotes && rest[quote + 1] == form_.separator) break;
        if (!form_.doublesQuotes) continue;
        if (rest[quote + 1] != '"') break;
        ++quote;
    }
    field.isClosed = quote != std::string_view::npos;
    field.text = rest.substr(0, quote);
    rest.remove_prefix(field.isClosed ? quote + 1 : rest.size());
    const std::size_t end = endOf(rest, false);
    field.behind = rest.substr(0, end);
    rest.remove_prefix(end);
}

std::size_t RecordFields::endOf(std::string_view rest, bool isNumber) const {
    if (isNumber && form_.numberSeparator != '\0') {
        const char pair[] = {form_.numberSeparator, form_.decimalSeparator == ',' ? form_.numberSeparator : ','};
        return std::min(rest.find_first_of({pair, sizeof(pair)}), rest.size());
    }
    if (!hasLeadBytes_) return std::min(rest.find(form_.separator), rest.size());
    for (std::size_t at = 0; at < rest.size(); ++at) {
        if (rest[at] == form_.separator) return at;
        if (form_.pcPage->isLeadByte(static_cast<std::uint8_t>(rest[at]))) ++at;
    }
    return rest.size();
}

// --- Fixed positions -------------------------------------------------------------------------------------------------

void RecordFields::splitFixed(std::string_view rest) {
    for (std::size_t at = 0; at < fields_.size(); ++at) {
        FieldText& field = fields_[at] = {};
        field.isMissing = rest.empty();
        const std::size_t width = std::min<std::size_t>(fixedWidth(columns_[at], rest), rest.size());
        field.text = rest.substr(0, width);
        rest.remove_prefix(width);
    }
    surplus_ = rest;
}

// A zoned or packed number whose first character is none of a sign position's does without one.
std::uint32_t RecordFields::fixedWidth(const HostColumn& column, std::string_view rest) const {
    const std::uint32_t point = column.decimals > 0 ? 1 : 0;
    if (column.type == column_type::Hex) return 2 * column.length;
    if (column.type == column_type::Binary) return binaryWidth(column.length) + point;
    if (!column.isNumber()) return column.length;
    const char first = rest.empty() ? ' ' : rest[0];
    const bool hasSign = first == '\0' || (!form_.noSignPosition && (first == ' ' || first == '-'));
    const std::uint32_t withSign =
        column.type == column_type::Zoned
            ? column.length + 1 + point
            : 2 * column.length + point - (form_.reducesEvenPacked && hasPadNibble(column) ? 1 : 0);
    return withSign - (hasSign ? 0 : 1);
}

void RecordFields::splitBytes(std::string_view rest) {
    for (std::size_t at = 0; at < fields_.size(); ++at) {
        FieldText& field = fields_[at] = {};
        field.isMissing = rest.size() < columns_[at].length;
        field.text = rest.substr(0, columns_[at].length);
        rest.remove_prefix(field.text.size());
    }
    surplus_ = rest;
}

// --- Tuples ----------------------------------------------------------------------------------------------------------

// As far as the quote that ends it, or as far as its line.
void RecordFields::takeTupleText(std::string_view& rest, FieldText& field) {
    field.isQuoted = rest.starts_with('"');
    const std::size_t end = field.isQuoted ? closingQuote(rest) : std::string_view::npos;
    field.isClosed = !field.isQuoted || end != std::string_view::npos;
    if (end == std::string_view::npos) {
        field.text = takeLine(rest);
        if (field.isQuoted) field.text.remove_prefix(1);
        return;
    }
    field.text = rest.substr(1, end - 1);
    rest.remove_prefix(end);
    takeLine(rest);
}

// A value has two lines: its kind (0 a number, 1 a text) with the number, then "V" or the text. Kind -1 ends the tuple.
void RecordFields::splitTuple(std::string_view rest) {
    for (std::size_t at = 0; at < fields_.size(); ++at) {
        if (rest.empty() || rest.starts_with("-1")) return missFrom(at);
        FieldText& field = fields_[at] = {};
        const std::string_view head = takeLine(rest);
        const bool isNumber = head.starts_with("0,");
        field.isWrongKind = isNumber != columns_[at].isNumber();
        if (!isNumber) {
            takeTupleText(rest, field);
            continue;
        }
        field.text = head.substr(2);
        const std::string_view second = takeLine(rest);
        if (second != "V" && second != "v") field.behind = second;
    }
    if (!rest.starts_with("-1")) surplus_ = rest;
}

}  // namespace checking

#include "checking/record_check.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "checking/number.h"
#include "checking/refusal_reason.h"

namespace checking {
namespace {

const std::uint8_t* bytesOf(std::string_view host) { return reinterpret_cast<const std::uint8_t*>(host.data()); }

bool isBlank(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

std::string counted(std::uint64_t count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

// The digits and the sign of a number in a BasicRandom record stand for the same on both systems.
bool areSameDigits(const HostColumn& column, std::string_view pc, std::string_view host) {
    const auto left = hostUnits(column, bytesOf(pc)), right = hostUnits(column, bytesOf(host));
    if (left || right) return left == right;
    return hostDecimal(column, bytesOf(pc)) && hostDecimal(column, bytesOf(pc)) == hostDecimal(column, bytesOf(host));
}

}  // namespace

RecordCheck::RecordCheck(const PcFileForm& form, const HostLayout& layout, Findings& findings,
                         std::function<std::string(std::uint64_t)> placeOf)
    : form_(form),
      columns_(layout.columns),
      findings_(findings),
      placeOf_(std::move(placeOf)),
      texts_(form),
      fields_(form, layout.columns) {}

void RecordCheck::compare(std::uint64_t index, std::string_view record, std::string_view host) {
    fields_.split(record);
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        const HostColumn& column = columns_[at];
        const std::string_view bytes = host.substr(column.offset, column.length);
        if (!compareShape(index, at)) break;
        if (form_.form == RecordForm::Binary)
            compareBytes(index, at, bytes);
        else if (column.isNumber())
            compareNumber(index, at, bytes);
        else if (column.type == column_type::Hex)
            compareHex(index, at, bytes);
        else
            compareText(index, at, bytes);
    }
    if (!fields_.surplus().empty()) compareSurplus(index, record);
}

// What stands behind the last field: more fields, or nothing that anybody would miss.
bool RecordCheck::isNothing(std::string_view surplus) const {
    return form_.form == RecordForm::Binary || std::all_of(surplus.begin(), surplus.end(), [this](char byte) {
               return byte == form_.separator || byte == ' ';
           });
}

std::string_view RecordCheck::withoutSeparator(std::string_view surplus) const {
    return surplus.substr(form_.separator != '\0' && surplus.starts_with(form_.separator) ? 1 : 0);
}

void RecordCheck::compareSurplus(std::uint64_t index, std::string_view record) {
    if (isNothing(fields_.surplus())) return;
    findings_.add(Fault::TooManyFields, Findings::NoColumn, [&] {
        return Finding{Fault::TooManyFields,
                       placeOf_(index),
                       "",
                       texts_.toUtf8(record),
                       "",
                       "the host file has " + counted(columns_.size(), "field") +
                           "; not sent would be: " + texts_.toUtf8(withoutSeparator(fields_.surplus()))};
    });
}

// False when there is nothing to compare in this field and those behind it.
bool RecordCheck::compareShape(std::uint64_t index, std::size_t at) {
    const FieldText& field = fields_.fields()[at];
    if (field.isMissing) {
        // At fixed positions blanks at the end of a record need not be there.
        const auto isWanted = [this](const HostColumn& column) { return !form_.isFixed() || !column.isText(); };
        const auto behind = columns_.begin() + static_cast<std::ptrdiff_t>(at);
        if (std::none_of(behind, columns_.end(), isWanted)) return false;
        // A quote without an end, which is told by itself, has taken the fields behind it.
        const auto isOpen = [](const FieldText& before) { return !before.isClosed; };
        if (std::any_of(fields_.fields().begin(), fields_.fields().end(), isOpen)) return false;
        findings_.add(Fault::TooFewFields, Findings::NoColumn, [&] {
            return Finding{Fault::TooFewFields,
                           placeOf_(index),
                           "",
                           "",
                           "",
                           "the record ends before field " + columns_[at].name + "; it has " + std::to_string(at) +
                               " of " + counted(columns_.size(), "field")};
        });
        return false;
    }
    return true;
}

void RecordCheck::tell(Fault fault, std::uint64_t index, std::size_t at, const std::string& stored,
                       const std::string& reason) {
    findings_.add(fault, at, [&] {
        const FieldText& field = fields_.fields()[at];
        const std::string text = texts_.toUtf8(field.plain(form_) + std::string(field.behind));
        return Finding{fault, placeOf_(index), columns_[at].name, text, stored, reason};
    });
}

// --- Texts ---------------------------------------------------------------------------------------------------------

void RecordCheck::compareText(std::uint64_t index, std::size_t at, std::string_view host) {
    const FieldText& field = fields_.fields()[at];
    const bool isPlain = !field.isQuoted || (field.isClosed && isBlank(field.behind) &&
                                             (!form_.doublesQuotes || field.text.find('"') == std::string_view::npos));
    if (isPlain ? !texts_.isSame(field.text, host)
                : !texts_.isSame(field.plain(form_), host) || !field.isClosed || !isBlank(field.behind))
        textDiffers(index, at, host);
}

void RecordCheck::textDiffers(std::uint64_t index, std::size_t at, std::string_view host) {
    const FieldText& field = fields_.fields()[at];
    const std::string text = field.plain(form_), stored = texts_.read(host);
    if (!field.isClosed)
        return tell(Fault::QuoteOpen, index, at, stored,
                    "the quote at the beginning of the text has no end in this record");
    if (!isBlank(field.behind)) {
        return tell(Fault::TextBehindQuote, index, at, stored,
                    "behind the closing quote stands \"" + texts_.toUtf8(field.behind) + "\", which is not sent");
    }
    if (text.find('\0') != std::string::npos)
        return tell(Fault::TextBehindNul, index, at, stored.substr(0, stored.find('\0')),
                    "a zero byte stands in the text, and ends it for whoever receives it");
    const std::string lost = texts_.lostCharacter(text, host);
    if (!lost.empty()) {
        return tell(Fault::CharacterLost, index, at, stored,
                    lost + " (" + codePoint(lost) + ") is not in host code page " + std::to_string(form_.hostCodePage));
    }
    const std::string wanted = texts_.toUtf8(text);
    if (wanted.starts_with(stored)) {
        return tell(Fault::TextCut, index, at, stored,
                    "the text has " + counted(std::string_view(text).find_last_not_of(' ') + 1, "byte") +
                        ", the field " + std::to_string(columns_[at].length));
    }
    tell(Fault::TextChanged, index, at, stored, "the text is not written as a text of this PC file type");
}

// --- Numbers -------------------------------------------------------------------------------------------------------

bool RecordCheck::isGrouped(const HostColumn& column) const { return column.type == column_type::Binary; }

void RecordCheck::compareNumber(std::uint64_t index, std::size_t at, std::string_view host) {
    const HostColumn& column = columns_[at];
    const auto written = plainUnits(fields_.fields()[at].text, form_.decimalSeparator, column.decimals);
    if (written && written == hostUnits(column, bytesOf(host))) return;
    const auto text = readDecimal(fields_.fields()[at].text, form_.decimalSeparator, isGrouped(column));
    if (!text || text != hostDecimal(column, bytesOf(host))) numberDiffers(index, at, host);
}

std::string RecordCheck::storedNumber(const HostColumn& column, std::string_view host) const {
    const auto number = hostDecimal(column, bytesOf(host));
    return number ? number->text(form_.decimalSeparator) : "bytes " + hexDigits(host);
}

void RecordCheck::numberDiffers(std::uint64_t index, std::size_t at, std::string_view host) {
    const HostColumn& column = columns_[at];
    const std::string_view text = fields_.fields()[at].text;
    const std::string stored = storedNumber(column, host);
    if (isBlank(text)) return tell(Fault::BlankNumber, index, at, stored, "the number is blank");
    auto number = readDecimal(text, form_.decimalSeparator, isGrouped(column));
    if (!number) return tell(Fault::NumberChanged, index, at, stored, "the text is not written as a number");
    if (number->fraction.size() > column.decimals) {
        const Decimal written = *number;
        number->fraction.resize(column.decimals);
        number->fraction.erase(number->fraction.find_last_not_of('0') + 1);
        number->isNegative = number->isNegative && !number->isZero();
        if (number == hostDecimal(column, bytesOf(host))) {
            return tell(
                Fault::FractionCut, index, at, stored,
                counted(written.fraction.size(), "decimal") + ", the field has " + std::to_string(column.decimals));
        }
    }
    tell(Fault::NumberChanged, index, at, stored,
         form_.isFixed() ? "in fixed positions a number ends at the right, with its point in its place"
                         : "the field holds another number");
}

// --- Bytes ---------------------------------------------------------------------------------------------------------

void RecordCheck::compareHex(std::uint64_t index, std::size_t at, std::string_view host) {
    const std::string_view text = withoutBlanks(fields_.fields()[at].text);
    constexpr char Digits[] = "0123456789ABCDEF";
    bool isSame = text.size() == 2 * host.size() && isBlank(fields_.fields()[at].behind);
    for (std::size_t byte = 0; isSame && byte < host.size(); ++byte) {
        const auto value = static_cast<std::uint8_t>(host[byte]);
        isSame = std::toupper(static_cast<unsigned char>(text[2 * byte])) == Digits[value >> 4] &&
                 std::toupper(static_cast<unsigned char>(text[2 * byte + 1])) == Digits[value & 0x0F];
    }
    if (!isSame)
        tell(Fault::HexChanged, index, at, hexDigits(host), "of hexadecimal bytes only F0 to F9 and 40 can be sent");
}

void RecordCheck::compareBytes(std::uint64_t index, std::size_t at, std::string_view host) {
    const HostColumn& column = columns_[at];
    const std::string_view bytes = fields_.fields()[at].text;
    if (column.isText()) {
        if (!texts_.isSame(bytes, host)) textDiffers(index, at, host);
    } else if (column.type == column_type::Zoned || column.type == column_type::Packed) {
        if (!areSameDigits(column, bytes, host))
            tell(Fault::NumberChanged, index, at, storedNumber(column, host),
                 "the bytes " + hexDigits(bytes) + " are no such number");
    }
}

// --- Refusals ------------------------------------------------------------------------------------------------------

// The first field that does not take its text.
std::size_t RecordCheck::findRefused(std::string& reason) const {
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        reason = refusalReason(form_, columns_[at], fields_.fields()[at]);
        if (!reason.empty()) return at;
    }
    return Findings::NoColumn;
}

// What is wrong with the record as a whole explains more than the field at which that shows.
std::string RecordCheck::shapeReason(std::size_t at) const {
    const auto& fields = fields_.fields();
    if (form_.form != RecordForm::Lines || form_.isFixed()) return {};
    for (std::size_t before = 0; before < at; ++before) {
        if (!fields[before].isClosed)
            return "the quote at the beginning of " + columns_[before].name + " has no end in this record";
    }
    if (fields[at].isMissing)
        return "the record has " + std::to_string(at) + " of " + counted(columns_.size(), "field");
    return {};
}

void RecordCheck::refuse(std::uint64_t index, std::string_view record, std::uint32_t fieldNumber,
                         const std::string& otherwise) {
    fields_.split(record);
    std::string reason;
    std::size_t at = fieldNumber - 1;
    if (fieldNumber < 1 || fieldNumber > columns_.size()) at = findRefused(reason);
    if (at != Findings::NoColumn) reason = shapeReason(at);
    if (at != Findings::NoColumn && reason.empty()) reason = refusalReason(form_, columns_[at], fields_.fields()[at]);
    if (reason.empty()) reason = otherwise;
    if (!isNothing(fields_.surplus()))
        reason += "; behind the last field stand more: " + texts_.toUtf8(withoutSeparator(fields_.surplus()));
    findings_.add(Fault::Refused, at, [&] {
        Finding finding{Fault::Refused, placeOf_(index), "", texts_.toUtf8(record), "", reason};
        if (at == Findings::NoColumn) return finding;
        finding.field = columns_[at].name;
        const std::string text = fields_.fields()[at].plain(form_);
        finding.text = form_.form == RecordForm::Binary ? hexDigits(text) : texts_.toUtf8(text);
        return finding;
    });
}

}  // namespace checking

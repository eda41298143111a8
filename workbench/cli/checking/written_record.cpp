#include "checking/written_record.h"

#include <algorithm>
#include <utility>

#include "checking/number.h"
#include "damaged_numbers.h"

namespace checking {
namespace {

// What of a text does not come back. Records of lines end at it for the transfer library; in the texts of a tuple a
// carriage return is a line feed to others.
std::string_view lineEndsOf(RecordForm form) { return form == RecordForm::Tuples ? "\r" : "\r\n\x1A"; }

std::string nameOf(char byte) {
    return byte == '\r' ? "a carriage return (0D)" : byte == '\n' ? "a line feed (0A)" : "the end-of-file byte 1A";
}

constexpr std::string_view BeginTuple = "-1,0\r\nBOT\r\n";

// A host field of zero bytes and blanks has no text.
bool hasZeroByte(std::string_view host) {
    constexpr std::string_view Nothing("\0\x40", 2);
    const std::size_t zero = host.find('\0');
    return zero != std::string_view::npos && host.find_first_not_of(Nothing, zero) != std::string_view::npos;
}

}  // namespace

std::string_view partOf(const HostColumn& column, std::string_view host) {
    return column.offset < host.size() ? host.substr(column.offset, column.length) : std::string_view();
}

WrittenRecord::WrittenRecord(const PcFileForm& form, const HostLayout& layout, Findings& findings,
                             std::function<std::string(std::uint64_t)> placeOf)
    : form_(form),
      columns_(layout.columns),
      findings_(findings),
      placeOf_(std::move(placeOf)),
      texts_(form),
      fields_(form, layout.columns) {}

bool WrittenRecord::compare(std::uint64_t index, std::string_view record, std::string_view host) {
    if (form_.form == RecordForm::Unchanged) return true;
    record = withoutLineEnd(form_, record);
    if (mayHoldLineEnd(record) && findLineEnd(index, host)) return false;
    fields_.split(record.substr(form_.form == RecordForm::Tuples ? BeginTuple.size() : 0));
    bool isWhole = true;
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        const HostColumn& column = columns_[at];
        const std::string_view bytes = partOf(column, host);
        std::optional<Fault> fault;
        if (column.isText() && !bytes.empty())
            fault = compareText(index, at, bytes);
        else if (column.isNumber() && bytes.size() == column.length)
            fault = compareNumber(index, at, bytes);
        isWhole = isWhole && !fault;
        // The fields behind it are not where they belong.
        if (fault == Fault::SeparatorInText || fault == Fault::QuoteInText || fault == Fault::NumberUnread) break;
    }
    return isWhole;
}

Fault WrittenRecord::tell(Fault fault, std::uint64_t index, std::size_t at, const std::string& text,
                          const std::string& stored, const std::string& reason) {
    findings_.add(fault, at,
                  [&] { return Finding{fault, placeOf_(index), columns_[at].name, text, stored, reason, {}}; });
    return fault;
}

// --- Texts ---------------------------------------------------------------------------------------------------------

// A tuple has two lines for its head, and two for each value.
bool WrittenRecord::mayHoldLineEnd(std::string_view record) const {
    if (form_.form == RecordForm::Lines) return record.find_first_of(lineEndsOf(form_.form)) != std::string_view::npos;
    const auto lines = static_cast<std::ptrdiff_t>(2 + 2 * columns_.size());
    return form_.form == RecordForm::Tuples && std::count(record.begin(), record.end(), '\r') != lines;
}

// True when one of the texts holds it.
bool WrittenRecord::findLineEnd(std::uint64_t index, std::string_view host) {
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        if (!columns_[at].isText()) continue;
        const std::string text = texts_.read(partOf(columns_[at], host));
        const std::size_t place = text.find_first_of(lineEndsOf(form_.form));
        if (place == std::string::npos) continue;
        const bool isTuple = form_.form == RecordForm::Tuples;
        tell(Fault::LineEndInText, index, at, text, isTuple ? text : text.substr(0, place),
             nameOf(text[place]) + (isTuple ? " stands in the text, which other programs read as a line feed"
                                            : " stands in the text, where a send, and most programs, end the record"));
        return true;
    }
    return false;
}

std::optional<Fault> WrittenRecord::compareText(std::uint64_t index, std::size_t at, std::string_view host) {
    const FieldText& field = fields_.fields()[at];
    const bool isPlain = !field.isQuoted || field.text.find('"') == std::string_view::npos;
    const bool isClean = field.behind.empty() && field.isClosed && !field.isMissing;
    if (isClean && !(form_.isText() && hasZeroByte(host)) &&
        (isPlain ? texts_.isWhole(field.text, host) : texts_.isWhole(field.plain(form_), host)))
        return std::nullopt;
    return tellText(faultOf(field, host), index, at, host);
}

// What keeps a text from being read as the host has it.
Fault WrittenRecord::faultOf(const FieldText& field, std::string_view host) const {
    const std::string text = texts_.read(host);
    if (form_.isText() && hasZeroByte(host)) return Fault::ZeroByteInText;
    if (!field.isQuoted && form_.separator != '\0' && text.find(form_.separator) != std::string::npos)
        return Fault::SeparatorInText;
    if (!form_.doublesQuotes && text.find('"') != std::string::npos) return Fault::QuoteInText;
    return Fault::CharacterReplaced;
}

Fault WrittenRecord::tellText(Fault fault, std::uint64_t index, std::size_t at, std::string_view host) {
    const std::string text = texts_.read(host);
    const std::string read = texts_.toUtf8(withoutBlanks(fields_.fields()[at].plain(form_)));
    switch (fault) {
        case Fault::ZeroByteInText:
            return tell(fault, index, at, text, read,
                        form_.isFixed() ? "a zero byte stands in the text, and a blank in the file"
                                        : "a zero byte stands in the text, and ends it in the file");
        case Fault::SeparatorInText:
            return tell(fault, index, at, text, read,
                        std::string("the text holds the separator \"") + form_.separator +
                            "\", and stands without quotes: the fields behind it move");
        case Fault::QuoteInText:
            return tell(fault, index, at, text, read, "a quote inside the text stands as it is, and ends it");
        default: {
            const std::string missing = texts_.missingCharacter(host);
            const std::string page = std::to_string(form_.inOem ? form_.pc.oemCodePage : form_.pc.ansiCodePage);
            return tell(fault, index, at, text, read,
                        missing.empty()
                            ? "the text would not be the same on the way back"
                            : missing + " (" + codePoint(missing) + ") is not in code page " + page + " of the PC");
        }
    }
}

// --- Numbers -------------------------------------------------------------------------------------------------------

std::optional<Fault> WrittenRecord::compareNumber(std::uint64_t index, std::size_t at, std::string_view host) {
    const HostColumn& column = columns_[at];
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(host.data());
    const std::string_view text = fields_.fields()[at].text;
    // Digits are made of damaged bytes, too, but not these bytes of the digits again.
    if (isDamaged(column, host)) {
        const std::string stored = form_.isText() ? texts_.toUtf8(text) : hexDigits(text);
        return tell(Fault::NumberDamaged, index, at, hexDigits(host), stored,
                    "the host's bytes are no number of the field's type");
    }
    if (!form_.isText()) return std::nullopt;
    const auto units = plainUnits(text, form_.decimalSeparator, column.decimals);
    if (units && units == hostUnits(column, bytes)) return std::nullopt;
    const auto wanted = hostDecimal(column, bytes);
    if (readDecimal(text, form_.decimalSeparator, false) == wanted) return std::nullopt;
    return tell(Fault::NumberUnread, index, at, wanted->text(form_.decimalSeparator), texts_.toUtf8(text),
                "what is read in its place is another number");
}

}  // namespace checking

#include "record/to_pc/delimited_record.h"

#include <algorithm>
#include <cstring>

#include "Z7XFRPCS/settings.h"
#include "record/dif_pieces.h"
#include "record/quoting.h"
#include "record/to_pc/display_table.h"
#include "record/to_pc/growing_record.h"
#include "record/to_pc/number_text.h"
#include "services/session.h"
#include "text/double_byte.h"

namespace record::to_pc {
namespace {

// Room for a record at first, and for a field at least: decimal text, quotes and separators in the worst case. What is
// not enough grows.
constexpr std::uint32_t PcBytesPerHostByte = 10;
constexpr std::uint32_t FieldBytesPerHostByte = 4;

// A source member's text is data as it stands: blanks kept, no quotes. It is the only field, and named for it.
bool isSourceText(const HostLayout& layout) {
    constexpr std::string_view SourceField = "SRCDTA";
    return layout.count() == 1 && std::string_view((*layout.begin()).field.name()).starts_with(SourceField);
}

// One record on its way.
class DelimitedRecord {
public:
    DelimitedRecord(const DelimitedWriter& writer, GrowingRecord& out)
        : writer_(writer), rules_(writer.layout.rules()), out_(out), row_(writer.display) {}

    ConversionResult convert(std::string_view hostRecord);
    void finish();

private:
    void leadIn();
    bool isTuple() const { return rules_.type.form == settings::RecordForm::Tuples; }
    Outcome convertField(const PlannedField& each, const char* source, std::uint32_t bytes);
    Outcome convertCharacterField(const PlannedField& each, const char* source, std::uint32_t bytes);
    void quoteWhereNeeded(std::uint32_t length);
    void quoteAlways(const FieldPlan& plan, std::uint32_t length);
    void convertNumericField(const FieldPlan& plan, const char* source);

    const DelimitedWriter& writer_;
    const FileRules& rules_;
    GrowingRecord& out_;
    DisplayRow row_;
    std::uint32_t index_ = 0;
};

ConversionResult DelimitedRecord::convert(std::string_view hostRecord) {
    for (const PlannedField& each : writer_.layout) {
        if (hostRecord.empty()) break;
        const auto bytes = std::min(each.plan.bytes, static_cast<std::uint32_t>(hostRecord.size()));
        if (bytes < each.plan.bytes && !each.plan.isCharacter) break;  // a number that is not whole
        leadIn();
        if (!out_.ensure(std::max(each.columnWidth + 2, bytes * FieldBytesPerHostByte))) break;
        const Outcome outcome = convertField(each, hostRecord.data(), bytes);
        if (outcome != Outcome::Converted) return {outcome, index_ + 1, &each};
        hostRecord.remove_prefix(bytes);
        ++index_;
    }
    return {out_.failed() ? Outcome::NoMemory : Outcome::Converted};
}

void DelimitedRecord::leadIn() {
    if (index_ == 0) {
        if (isTuple()) out_.append(dif::BeginTuple);
    } else if (rules_.separator != '\0') {
        out_.append(rules_.separator);
    }
}

Outcome DelimitedRecord::convertField(const PlannedField& each, const char* source, std::uint32_t bytes) {
    if (each.plan.isCharacter) return convertCharacterField(each, source, bytes);
    if (!each.plan.hasTextForm()) return Outcome::NoTextForm;
    convertNumericField(each.plan, source);
    return Outcome::Converted;
}

Outcome DelimitedRecord::convertCharacterField(const PlannedField& each, const char* source, std::uint32_t bytes) {
    const FieldPlan& plan = each.plan;
    out_.append(plan.difHead);
    if (plan.isQuoted) out_.append('"');
    // The conversion may need all the room its bytes give it, behind the head too.
    if (!out_.ensure(bytes * FieldBytesPerHostByte)) return Outcome::NoMemory;
    std::uint32_t converted = 0;
    if (writer_.codePage.hostToPcText(source, out_.end(), bytes, out_.room(), &converted) != 0)
        return Outcome::TextNotConverted;
    // It was offered all the room there is, so the zero byte behind it may need more.
    const std::uint32_t length = std::max(bytes, converted);
    if (!out_.ensure(length + 1)) return Outcome::NoMemory;
    out_.end()[length] = '\0';
    if (row_) {
        row_.setCell(index_, out_.end());
        out_.advance(length);
        if (bytes < each.columnWidth) out_.appendBlanks(each.columnWidth - bytes);
    } else if (plan.isQuoted) {
        quoteAlways(plan, length);
    } else if (rules_.type.quotes == settings::Quotes::Never || isSourceText(writer_.layout)) {
        out_.advance(length);
    } else {
        quoteWhereNeeded(length);
    }
    return out_.failed() ? Outcome::NoMemory : Outcome::Converted;
}

// The field's text ends at its first zero byte.
void DelimitedRecord::quoteWhereNeeded(std::uint32_t length) {
    // Room for every character a double quote, and two around them.
    if (!out_.ensure(2 * length + 3)) return;
    char* field = out_.end();
    const std::string_view text(field, std::strlen(field));
    // The comma it is, whatever the locale's list separator.
    const char special = rules_.type.separator == settings::Separator::Tab ? '\t' : ',';
    const std::string_view trimmed = text::trimmedEnd(text);
    if (text::findCharacter(text, '"') == std::string_view::npos &&
        text::findCharacter(text, special) == std::string_view::npos) {
        out_.advance(static_cast<std::uint32_t>(trimmed.size()));
        return;
    }
    std::memmove(field + 1, field, trimmed.size());
    *field = '"';
    const std::size_t doubled = doubleQuotes(field + 1, trimmed.size(), out_.room() - 1);
    out_.advance(static_cast<std::uint32_t>(doubled) + 1);
    out_.append('"');
}

// The opening quote stands already. Only DIF doubles the quotes inside: a BasicSequential text with one in front of a
// comma cannot be read back.
void DelimitedRecord::quoteAlways(const FieldPlan& plan, std::uint32_t length) {
    if (!out_.ensure(2 * length + 4)) return;
    char* field = out_.end();
    std::size_t trimmed = text::trimmedEnd({field, std::strlen(field)}).size();
    if (isTuple()) trimmed = doubleQuotes(field, trimmed, out_.room());
    out_.advance(static_cast<std::uint32_t>(trimmed));
    out_.append('"');
    out_.append(plan.difEnd);
}

// The text is made beside the record, since it may be shorter than what was reserved for it in the display.
void DelimitedRecord::convertNumericField(const FieldPlan& plan, const char* source) {
    const std::uint32_t length = formatNumericField(plan, source, writer_.numberText);
    if (row_) {
        row_.setCell(index_, writer_.numberText);
        return;
    }
    out_.append(plan.difHead);
    out_.append({writer_.numberText, length});
    out_.append(plan.difEnd);
}

// The blanks go from the real end of the record: a zero byte inside it becomes a blank only afterwards, so that what
// stands behind one is not lost.
void DelimitedRecord::finish() {
    if (row_) return;
    if (services::GetSetting(writer_.settings, zhst::setting::TrimRecordBlanks) == 1)
        out_.shortenTo(static_cast<std::uint32_t>(text::trimmedEnd(out_.text()).size()));
    if (!isTuple()) out_.append("\r\n");
    if (!out_.failed()) blankOutNulls(out_.end() - out_.length(), out_.length());
}

}  // namespace

ConversionResult toDelimitedRecord(const DelimitedWriter& writer, std::string_view hostRecord,
                                   services::OwnedBytes& work, std::uint32_t& length) {
    GrowingRecord out(work);
    DelimitedRecord record(writer, out);
    work = services::OwnedBytes::make(static_cast<std::uint32_t>(hostRecord.size()) * PcBytesPerHostByte + 2, true);
    if (!work) return {Outcome::NoMemory};
    const ConversionResult result = record.convert(hostRecord);
    if (!result.isConverted()) return result;
    record.finish();
    length = out.length();
    return {out.failed() ? Outcome::NoMemory : Outcome::Converted};
}

}  // namespace record::to_pc

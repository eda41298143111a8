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

// Room for a record at first, and for a field: its bytes as decimal text, and more. What is not enough grows.
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
    void showCell(std::uint32_t length, std::uint32_t padding);
    bool putText(const FieldPlan& plan, std::uint32_t length);
    bool putSpecialText(bool isQuoted, std::uint32_t length);
    void convertNumericField(const FieldPlan& plan, const char* source);

    const DelimitedWriter& writer_;
    const FileRules& rules_;
    GrowingRecord& out_;
    DisplayRow row_;
    std::uint32_t index_ = 0;
    bool mayHoldNulls_ = false;  // other texts end at their first zero byte
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
        if (isTuple()) out_.put(dif::BeginTuple);
    } else if (rules_.separator != '\0') {
        out_.put(rules_.separator);
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
    out_.put(plan.difHead);
    if (plan.isQuoted) out_.put('"');
    // The conversion may need all the room its bytes give it, behind the head too.
    if (!out_.ensure(bytes * FieldBytesPerHostByte)) return Outcome::NoMemory;
    std::uint32_t converted = 0;
    if (writer_.codePage.hostToPcText(source, out_.end(), bytes, out_.room(), &converted) != 0)
        return Outcome::TextNotConverted;
    const std::uint32_t length = std::max(bytes, converted);
    if (row_) {
        showCell(length, bytes < each.columnWidth ? each.columnWidth - bytes : 0);
    } else if (!plan.isQuoted && (rules_.type.quotes == settings::Quotes::Never || isSourceText(writer_.layout))) {
        out_.advance(length);
        mayHoldNulls_ = true;
    } else {
        if (!putText(plan, length)) return Outcome::NoMemory;
        if (plan.isQuoted) out_.put('"');
        out_.put(plan.difEnd);
    }
    return Outcome::Converted;
}

void DelimitedRecord::showCell(std::uint32_t length, std::uint32_t padding) {
    out_.end()[length] = '\0';
    row_.setCell(index_, out_.end());
    out_.advance(length);
    if (out_.ensure(padding)) out_.putBlanks(padding);
}

// Without its trailing blanks. Nearly all texts are plain, and stand as they were converted.
bool DelimitedRecord::putText(const FieldPlan& plan, std::uint32_t length) {
    const std::string_view text = text::withoutSpaces({out_.end(), length});
    if (!rules_.isPlain(text)) return putSpecialText(plan.isQuoted, length);
    out_.advance(static_cast<std::uint32_t>(text.size()));
    return true;
}

// With bytes of a meaning. The text ends at its first zero byte. Of the types that quote every text, whose quotes stand
// outside of this, DIF alone doubles those inside: a BasicSequential text with one in front of a comma cannot be read
// back.
bool DelimitedRecord::putSpecialText(bool isQuoted, std::uint32_t length) {
    // Every character may be a double quote, with two around them and a zero behind.
    if (!out_.ensure(2 * length + 3)) return false;
    char* field = out_.end();
    field[length] = '\0';
    std::size_t end = text::trimmedEnd({field, std::strlen(field)}).size();
    const bool gainsQuotes =
        !isQuoted && (text::findCharacter({field, end}, '"') != std::string_view::npos ||
                      text::findCharacter({field, end}, rules_.quotedCharacter()) != std::string_view::npos);
    if (gainsQuotes) {
        std::memmove(field + 1, field, end);
        out_.put('"');
    }
    if (gainsQuotes || isTuple()) end = doubleQuotes(out_.end(), end, out_.room());
    out_.advance(static_cast<std::uint32_t>(end));
    if (gainsQuotes) out_.put('"');
    return true;
}

// A cell is made beside the record, since it may be shorter than what was reserved for it.
void DelimitedRecord::convertNumericField(const FieldPlan& plan, const char* source) {
    if (row_) {
        formatNumericField(plan, source, writer_.numberText);
        row_.setCell(index_, writer_.numberText);
        return;
    }
    out_.put(plan.difHead);
    out_.advance(formatNumericField(plan, source, out_.end()));
    out_.put(plan.difEnd);
}

// The blanks go from the real end of the record: a zero byte inside it becomes a blank only afterwards, so that what
// stands behind one is not lost.
void DelimitedRecord::finish() {
    if (row_) return;
    if (services::GetSetting(writer_.settings, zhst::setting::TrimRecordBlanks) == 1)
        out_.shortenTo(static_cast<std::uint32_t>(text::trimmedEnd(out_.text()).size()));
    const std::string_view lineEnd = isTuple() ? "" : "\r\n";
    out_.put(lineEnd);
    if (mayHoldNulls_) blankOutNulls(out_.end() - out_.length(), out_.length());
}

}  // namespace

ConversionResult toDelimitedRecord(const DelimitedWriter& writer, std::string_view hostRecord,
                                   services::OwnedBytes& work, std::uint32_t& length) {
    GrowingRecord out(work, static_cast<std::uint32_t>(hostRecord.size()) * PcBytesPerHostByte + 2);
    DelimitedRecord record(writer, out);
    if (!out.begin()) return {Outcome::NoMemory};
    const ConversionResult result = record.convert(hostRecord);
    if (!result.isConverted()) return result;
    record.finish();
    length = out.length();
    return {};
}

}  // namespace record::to_pc

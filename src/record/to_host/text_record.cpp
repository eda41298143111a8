#include "record/to_host/text_record.h"

#include <algorithm>

#include "record/to_host/character_field.h"
#include "record/to_host/dif_value.h"
#include "record/to_host/field_text.h"

namespace record::to_host {
namespace {

// One PC record and the host record that is made of it, field by field.
class TextRecord {
public:
    TextRecord(const FieldConversion& conversion, std::string_view record, std::span<char> hostRecord)
        : conversion_(conversion), rest_(record), room_(hostRecord) {}

    ConversionResult convert(const HostLayout& layout);
    std::size_t room() const { return room_.size(); }

private:
    Outcome convertField(const FieldPlan& plan);
    Outcome convertNumericField(const FieldPlan& plan);

    const FieldConversion& conversion_;
    std::string_view rest_;
    std::span<char> room_;  // what is left of the host record
};

ConversionResult TextRecord::convert(const HostLayout& layout) {
    std::uint32_t number = 0;
    for (const PlannedField& each : layout) {
        const bool behindDelimiter = number++ > 0 && conversion_.rules.separator != '\0';
        // Whatever it is: a field that ended early leaves something else there, and the next one begins behind it.
        if (behindDelimiter && !rest_.empty()) rest_.remove_prefix(1);
        if (each.plan.bytes > room_.size()) return {Outcome::HostRecordTooShort, number, &each};
        const Outcome outcome = convertField(each.plan);
        if (outcome != Outcome::Converted) return {outcome, number, &each};
        room_ = room_.subspan(each.plan.bytes);
    }
    return {};
}

Outcome TextRecord::convertField(const FieldPlan& plan) {
    if (!plan.isCharacter) return convertNumericField(plan);
    return extractCharacterField(conversion_, plan, rest_, room_.data());
}

Outcome TextRecord::convertNumericField(const FieldPlan& plan) {
    if (!takeDifPiece(rest_, plan.difHead)) return Outcome::BadDifValue;
    const ConvertedField converted = convertFieldText(conversion_, plan, rest_, room_.data());
    if (converted.hostBytes != plan.bytes) return Outcome::BadNumber;
    // A field of no bytes took none, as it should; it is refused under its own name.
    if (plan.bytes == 0) return Outcome::FieldWithoutLength;
    rest_.remove_prefix(std::min(converted.consumed, rest_.size()));
    return takeDifPiece(rest_, plan.difEnd) ? Outcome::Converted : Outcome::BadDifValue;
}

}  // namespace

ConversionResult convertTextRecord(const HostLayout& layout, const FieldConversion& conversion, std::string_view record,
                                   std::span<char> hostRecord, std::uint32_t& length) {
    TextRecord text(conversion, record, hostRecord);
    const ConversionResult result = text.convert(layout);
    length = static_cast<std::uint32_t>(hostRecord.size() - text.room());
    return result;
}

}  // namespace record::to_host

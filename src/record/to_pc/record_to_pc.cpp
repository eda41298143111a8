#include "record/to_pc/record_to_pc.h"

#include <algorithm>
#include <utility>

#include "record/to_pc/binary_record.h"
#include "record/to_pc/delimited_record.h"

namespace record::to_pc {

ConversionResult RecordToPc::build(std::string_view hostRecord, services::OwnedBytes& work, std::uint32_t& length) {
    if (layout_.rules().type.form == settings::RecordForm::Binary)
        return toBinaryRecord(layout_, codePage_, hostRecord, work, length);
    return toDelimitedRecord({layout_, codePage_, settings_, display_, numberText_}, hostRecord, work, length);
}

// The finished record goes over the host record, where the driver, and a provider that looks, expect it.
ConversionResult RecordToPc::convert(char* buffer, std::uint32_t hostLength, std::uint32_t capacity, PcRecord& record) {
    if (layout_.rules().type.form == settings::RecordForm::Unchanged) {
        record.bytes = {buffer, hostLength};
        return {};
    }
    services::OwnedBytes work;
    std::uint32_t length = 0;
    const ConversionResult result = build({buffer, hostLength}, work, length);
    if (!result.isConverted() || display_) return result;
    if (length > capacity) {
        record.bytes = {work.data(), length};
        record.longRecord = std::move(work);
        return result;
    }
    std::copy_n(work.data(), length, buffer);
    record.bytes = {buffer, length};
    return result;
}

}  // namespace record::to_pc

#include "record/to_pc/record_to_pc.h"

#include <algorithm>

#include "record/to_pc/binary_record.h"
#include "record/to_pc/delimited_record.h"

namespace record::to_pc {

ConversionResult RecordToPc::build(std::string_view hostRecord, std::uint32_t& length) {
    if (layout_.rules().type.form == settings::RecordForm::Binary)
        return toBinaryRecord(layout_, codePage_, hostRecord, work_, length);
    return toDelimitedRecord({layout_, codePage_, settings_, display_, numberText_}, hostRecord, work_, length);
}

// The finished record goes over the host record, where the driver, and a provider that looks, expect it.
ConversionResult RecordToPc::convert(char* buffer, std::uint32_t hostLength, std::uint32_t capacity,
                                     std::string_view& record) {
    if (layout_.rules().type.form == settings::RecordForm::Unchanged) {
        record = {buffer, hostLength};
        return {};
    }
    std::uint32_t length = 0;
    const ConversionResult result = build({buffer, hostLength}, length);
    if (!result.isConverted() || display_) return result;
    record = {work_.data(), length};
    if (length > capacity) return result;
    std::copy_n(work_.data(), length, buffer);
    record = {buffer, length};
    return result;
}

}  // namespace record::to_pc

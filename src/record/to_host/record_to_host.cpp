#include "record/to_host/record_to_host.h"

#include <algorithm>
#include <span>

#include "record/to_host/binary_record.h"
#include "record/to_host/text_record.h"

namespace record::to_host {

bool RecordToHost::allocate(std::uint32_t hostLength) {
    hostRecord_ = services::OwnedBytes::make(hostLength, true);
    fieldBuffer_ = services::OwnedBytes::make(hostLength, true);
    return hostRecord_ && fieldBuffer_;
}

ConversionResult RecordToHost::convert(char* buffer, std::uint32_t recordLength) {
    if (layout_.rules().type.form == settings::RecordForm::Unchanged) return {};
    const std::span<char> hostRecord(hostRecord_.data(), hostRecord_.size());
    std::uint32_t length = 0;
    const ConversionResult result = layout_.rules().type.form == settings::RecordForm::Binary
                                        ? convertBinaryRecord(layout_, codePage_, buffer, hostRecord, length)
                                        : convertTextRecord(layout_,
                                                            {layout_.rules(), codePage_, settings_, toSourceFile_,
                                                             fieldBuffer_.data(), fieldBuffer_.size()},
                                                            {buffer, recordLength}, hostRecord, length);
    if (result.isConverted()) std::copy_n(hostRecord_.data(), length, buffer);
    return result;
}

}  // namespace record::to_host

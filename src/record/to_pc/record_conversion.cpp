#include "record/to_pc/record_conversion.h"

#include <algorithm>
#include <utility>

#include "record/to_pc/binary_record.h"
#include "record/to_pc/delimited_record.h"
#include "settings/pc_file_types.h"

namespace record::to_pc {
namespace {

// The finished record goes over the host record, if it fits there.
bool deliver(RecordConverter& converter, services::OwnedBytes work, std::uint32_t length, PcRecord& record) {
    if (length > provider::BufferSize) {
        record.bytes = {work.data(), length};
        record.longRecord = std::move(work);
        return true;
    }
    if (converter.textDisplay) return true;  // a row of the display is no record
    char* buffer = converter.tfSession->dataBuffer();
    std::copy_n(work.data(), length, buffer);
    record.bytes = {buffer, length};
    return true;
}

}  // namespace

bool convertHostRecord(RecordConverter& converter, std::uint32_t hostLength, PcRecord& record) {
    const std::string_view hostRecord(converter.tfSession->dataBuffer(), hostLength);
    const std::int32_t type = converter.transferSettings->receiveFileType;
    services::OwnedBytes work;
    std::uint32_t length = 0;
    if (settings::isTextLike(type)) {
        if (!toDelimitedRecord(converter, hostRecord, work, length)) return false;
    } else if (type == settings::BasicRandom) {
        if (!toBinaryRecord(converter, hostRecord, work, length)) return false;
    } else {
        record.bytes = hostRecord;
        return true;
    }
    return deliver(converter, std::move(work), length, record);
}

bool defineDisplayColumns(RecordConverter& converter) {
    std::uint32_t index = 0;
    for (HostField& field : converter.fields) {
        const std::uint32_t point = field.isNumber() && field.fieldLength().decimals > 0 ? 1 : 0;
        field.columnWidth = std::max(field.fieldTextWidth('\0') + point, field.nameLength());
        const bool toTheRight = !field.fieldLength().isCharacter();
        services::TextDisplayAddColumn(converter.textDisplay, index++, field.name(), field.columnWidth,
                                       toTheRight ? services::AlignRight : services::AlignLeft);
    }
    return index > 0;
}

}  // namespace record::to_pc

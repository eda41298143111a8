#include "record/to_host/record_parser.h"

#include <algorithm>
#include <string_view>

#include "record/dif_pieces.h"
#include "record/to_host/binary_record.h"
#include "record/to_host/character_field.h"
#include "record/to_host/dif_value.h"
#include "record/to_host/field_text.h"
#include "send/refusals.h"
#include "settings/pc_file_types.h"

namespace record::to_host {
namespace {

namespace dif = record::dif;
using record::HostField;
using record::RecordConverter;

// One PC record of a text-like file and the host record that is made of it, field by field.
class TextRecord {
public:
    TextRecord(RecordConverter& converter, std::string_view record, std::uint32_t recordNumber)
        : converter_(converter),
          type_(converter.transferSettings->sendFileType),
          rest_(record),
          recordNumber_(recordNumber) {}

    bool convert();
    std::uint32_t hostLength() const { return position_; }

private:
    bool convertField(const HostField& field);
    bool convertNumericField(const HostField& field);
    void skipDelimiter();

    RecordConverter& converter_;
    std::int32_t type_;
    std::string_view rest_;
    std::uint32_t recordNumber_;
    std::uint32_t fieldNumber_ = 0;
    std::uint32_t position_ = 0;  // in the host record
};

bool TextRecord::convert() {
    for (const HostField& field : converter_.fields) {
        if (fieldNumber_++ > 0) skipDelimiter();
        const std::uint32_t bytes = field.fieldLength().bytes;
        if (bytes > converter_.hostRecord.size() - position_) return send::refuseShortHostRecord(converter_);
        if (!convertField(field)) return false;
        position_ += bytes;
    }
    return true;
}

void TextRecord::skipDelimiter() {
    if (type_ == settings::AsciiText || type_ == settings::Dif || rest_.empty()) return;
    rest_.remove_prefix(1);
}

bool TextRecord::convertField(const HostField& field) {
    if (!field.fieldLength().isCharacter()) return convertNumericField(field);
    return extractCharacterField(converter_, field, rest_, converter_.hostRecord.data() + position_);
}

bool TextRecord::convertNumericField(const HostField& field) {
    const bool asString = field.type() == record::Hex;
    const bool isDif = type_ == settings::Dif;
    if (isDif && !takeDifPiece(rest_, asString ? dif::StringHead : dif::NumberHead))
        return send::refuseDifValue(converter_);
    const ConvertedField converted = convertFieldText(field, rest_, converter_.hostRecord.data() + position_);
    const std::uint32_t bytes = field.fieldLength().bytes;
    if (converted.hostBytes != bytes) return send::refuseNumber(converter_, recordNumber_, fieldNumber_);
    if (bytes == 0) return send::refuseEmptyField(converter_, field);
    rest_.remove_prefix(std::min(converted.consumed, rest_.size()));
    if (!isDif) return true;
    return takeDifPiece(rest_, asString ? std::string_view("\r\n") : dif::NumberEnd) ||
           send::refuseDifValue(converter_);
}

}  // namespace

bool convertRecord(RecordConverter& converter, std::uint32_t recordLength, std::uint32_t recordNumber) {
    const std::int32_t type = converter.transferSettings->sendFileType;
    if (type == settings::BasicRandom) return convertBinaryRecord(converter, recordNumber);
    if (type == settings::NoConversion) return true;
    char* buffer = converter.tfSession->dataBuffer();
    TextRecord record(converter, {buffer, recordLength}, recordNumber);
    if (!record.convert()) return false;
    std::copy_n(converter.hostRecord.data(), record.hostLength(), buffer);
    return true;
}

}  // namespace record::to_host

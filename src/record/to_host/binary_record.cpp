#include "record/to_host/binary_record.h"

#include <algorithm>

#include "record/to_pc/number_text.h"
#include "send/refusals.h"

namespace record::to_host {
namespace {

constexpr std::uint8_t Zone = 0xF0;
constexpr std::uint8_t NegativeZone = 0xD0;
constexpr std::uint8_t PositiveSign = 0xF;
constexpr std::uint8_t NegativeSign = 0xD;
constexpr std::uint8_t LargestDigit = 9;

// The last digit is not checked.
bool zonedToHost(const char* source, char* destination, std::uint32_t bytes) {
    for (std::uint32_t at = 0; at < bytes; ++at) {
        const auto byte = static_cast<std::uint8_t>(source[at]);
        const bool last = at + 1 == bytes;
        const std::uint8_t digit = byte & 0x0F;
        if (!last && digit > LargestDigit) return false;
        const bool negative = last && record::to_pc::isNegativeSign(byte >> 4);
        destination[at] = static_cast<char>((negative ? NegativeZone : Zone) | digit);
    }
    return true;
}

bool packedToHost(const char* source, char* destination, std::uint32_t bytes) {
    for (std::uint32_t at = 0; at < bytes; ++at) {
        const auto byte = static_cast<std::uint8_t>(source[at]);
        const bool last = at + 1 == bytes;
        if (byte >> 4 > LargestDigit || (!last && (byte & 0x0F) > LargestDigit)) return false;
        const std::uint8_t sign = record::to_pc::isNegativeSign(byte & 0x0F) ? NegativeSign : PositiveSign;
        destination[at] = static_cast<char>(last ? (byte & 0xF0) | sign : byte);
    }
    return true;
}

bool convertField(record::RecordConverter& converter, const record::HostField& field, const char* source,
                  char* destination, std::uint32_t recordNumber, std::uint32_t fieldNumber) {
    const std::uint32_t bytes = field.fieldLength().bytes;
    switch (field.type()) {
        case record::Hex:
            std::copy_n(source, bytes, destination);
            return true;
        case record::Binary:
            record::to_pc::reverseBytes(source, destination, bytes);
            return true;
        case record::Zoned:
            return zonedToHost(source, destination, bytes) || send::refuseNumber(converter, recordNumber, fieldNumber);
        case record::Packed:
            return packedToHost(source, destination, bytes) || send::refuseNumber(converter, recordNumber, fieldNumber);
        default:
            return converter.pcToHost(source, destination, bytes, bytes);
    }
}

}  // namespace

bool convertBinaryRecord(record::RecordConverter& converter, std::uint32_t recordNumber) {
    char* record = converter.tfSession->dataBuffer();
    const services::OwnedBytes& hostRecord = converter.hostRecord;
    std::uint32_t position = 0;
    std::uint32_t fieldNumber = 0;
    for (const record::HostField& field : converter.fields) {
        const std::uint32_t bytes = field.fieldLength().bytes;
        if (bytes > hostRecord.size() - position) return send::refuseShortHostRecord(converter);
        if (!convertField(converter, field, record + position, hostRecord.data() + position, recordNumber,
                          ++fieldNumber))
            return false;
        position += bytes;
    }
    std::copy_n(hostRecord.data(), position, record);
    return true;
}

}  // namespace record::to_host

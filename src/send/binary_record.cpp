#include "send/binary_record.h"

#include <algorithm>

#include "receive/numeric_field.h"
#include "send/refusals.h"

namespace send {
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
        const bool negative = last && receive::isNegativeSign(byte >> 4);
        destination[at] = static_cast<char>((negative ? NegativeZone : Zone) | digit);
    }
    return true;
}

bool packedToHost(const char* source, char* destination, std::uint32_t bytes) {
    for (std::uint32_t at = 0; at < bytes; ++at) {
        const auto byte = static_cast<std::uint8_t>(source[at]);
        const bool last = at + 1 == bytes;
        if (byte >> 4 > LargestDigit || (!last && (byte & 0x0F) > LargestDigit)) return false;
        const std::uint8_t sign = receive::isNegativeSign(byte & 0x0F) ? NegativeSign : PositiveSign;
        destination[at] = static_cast<char>(last ? (byte & 0xF0) | sign : byte);
    }
    return true;
}

bool convertField(receive::RecordConverter& converter, const receive::HostField& field, const char* source,
                  char* destination, std::uint32_t recordNumber, std::uint32_t fieldNumber) {
    const std::uint32_t bytes = field.fieldLength().bytes;
    switch (field.type()) {
        case receive::Hex:
            std::copy_n(source, bytes, destination);
            return true;
        case receive::Binary:
            receive::reverseBytes(source, destination, bytes);
            return true;
        case receive::Zoned:
            return zonedToHost(source, destination, bytes) || refuseNumber(converter, recordNumber, fieldNumber);
        case receive::Packed:
            return packedToHost(source, destination, bytes) || refuseNumber(converter, recordNumber, fieldNumber);
        default:
            return converter.pcToHost(source, destination, bytes, bytes);
    }
}

}  // namespace

bool convertBinaryRecord(receive::RecordConverter& converter, std::uint32_t recordNumber) {
    char* record = converter.tfSession->dataBuffer();
    const services::OwnedBytes& hostRecord = converter.hostRecord;
    std::uint32_t position = 0;
    std::uint32_t fieldNumber = 0;
    for (const receive::HostField& field : converter.fields) {
        const std::uint32_t bytes = field.fieldLength().bytes;
        if (bytes > hostRecord.size() - position) return refuseShortHostRecord(converter);
        if (!convertField(converter, field, record + position, hostRecord.data() + position, recordNumber,
                          ++fieldNumber))
            return false;
        position += bytes;
    }
    std::copy_n(hostRecord.data(), position, record);
    return true;
}

}  // namespace send

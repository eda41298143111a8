#include "record/to_pc/binary_record.h"

#include <algorithm>

#include "record/to_pc/number_text.h"

namespace record::to_pc {
namespace {

constexpr std::uint8_t PcZone = 0x30;
constexpr std::uint8_t PcNegativeZone = 0xB0;
constexpr std::uint8_t PcPositiveSign = 0x3;
constexpr std::uint8_t PcNegativeSign = 0xB;

void zonedToPc(const char* source, char* destination, std::uint32_t bytes) {
    for (std::uint32_t at = 0; at < bytes; ++at) {
        const auto byte = static_cast<std::uint8_t>(source[at]);
        const bool negative = at + 1 == bytes && isNegativeSign(byte >> 4);
        destination[at] = static_cast<char>((negative ? PcNegativeZone : PcZone) + (byte & 0x0F));
    }
}

void packedToPc(const char* source, char* destination, std::uint32_t bytes) {
    std::copy_n(source, bytes, destination);
    if (bytes == 0) return;
    const auto last = static_cast<std::uint8_t>(source[bytes - 1]);
    const std::uint8_t sign = isNegativeSign(last & 0x0F) ? PcNegativeSign : PcPositiveSign;
    destination[bytes - 1] = static_cast<char>((last & 0xF0) | sign);
}

bool convertField(const RecordConverter& converter, const HostField& field, const char* source, char* destination,
                  std::uint32_t bytes) {
    switch (field.type()) {
        case Hex:
            std::copy_n(source, bytes, destination);
            return true;
        case Binary:
            reverseBytes(source, destination, bytes);
            return true;
        case Zoned:
            zonedToPc(source, destination, bytes);
            return true;
        case Packed:
            packedToPc(source, destination, bytes);
            return true;
        default:
            return converter.hostToPc(source, destination, bytes, bytes, nullptr);
    }
}

}  // namespace

bool toBinaryRecord(RecordConverter& converter, std::string_view hostRecord, services::OwnedBytes& work,
                    std::uint32_t& length) {
    const auto hostLength = static_cast<std::uint32_t>(hostRecord.size());
    work = services::OwnedBytes::make(std::max<std::uint32_t>(hostLength, 1), true);
    if (!work) {
        messages::show(converter.messageOwner(), zhst::message::OutOfMemory);
        return false;
    }
    length = 0;
    for (const HostField& field : converter.fields) {
        if (length >= hostLength) break;
        const FieldLength declared = field.fieldLength();
        const std::uint32_t bytes = std::min(declared.bytes, hostLength - length);
        if (bytes < declared.bytes && !declared.isCharacter()) break;  // a number that is not whole
        if (!convertField(converter, field, hostRecord.data() + length, work.data() + length, bytes)) return false;
        length += bytes;
    }
    return true;
}

}  // namespace record::to_pc

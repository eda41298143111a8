#include "record/to_pc/binary_record.h"

#include <algorithm>

#include "record/signs.h"

namespace record::to_pc {
namespace {

void zonedToPc(const char* source, char* destination, std::uint32_t bytes) {
    for (std::uint32_t at = 0; at < bytes; ++at) {
        const bool negative = at + 1 == bytes && sign::isNegative(sign::highNibble(source[at]));
        const std::uint8_t zone = negative ? sign::PcNegativeZone : sign::PcZone;
        destination[at] = static_cast<char>(zone + sign::lowNibble(source[at]));
    }
}

void packedToPc(const char* source, char* destination, std::uint32_t bytes) {
    std::copy_n(source, bytes, destination);
    if (bytes == 0) return;
    const char last = source[bytes - 1];
    const bool negative = sign::isNegative(sign::lowNibble(last));
    destination[bytes - 1] = sign::ofNibbles(sign::highNibble(last), negative ? sign::PcNegative : sign::PcPositive);
}

bool convertField(const text::CodePageState& codePage, const FieldPlan& plan, const char* source, char* destination,
                  std::uint32_t bytes) {
    switch (plan.type) {
        case Hex:
            std::copy_n(source, bytes, destination);
            return true;
        case Binary:
            std::reverse_copy(source, source + bytes, destination);
            return true;
        case Zoned:
            zonedToPc(source, destination, bytes);
            return true;
        case Packed:
            packedToPc(source, destination, bytes);
            return true;
        default:
            return codePage.hostToPcText(source, destination, bytes, bytes, nullptr) == 0;
    }
}

}  // namespace

ConversionResult toBinaryRecord(const HostLayout& layout, const text::CodePageState& codePage,
                                std::string_view hostRecord, services::OwnedBytes& work, std::uint32_t& length) {
    const auto hostLength = static_cast<std::uint32_t>(hostRecord.size());
    if (!work.ensure(std::max<std::uint32_t>(hostLength, 1))) return {Outcome::NoMemory};
    length = 0;
    for (const PlannedField& each : layout) {
        if (length >= hostLength) break;
        const std::uint32_t bytes = std::min(each.plan.bytes, hostLength - length);
        if (bytes < each.plan.bytes && !each.plan.isCharacter) break;  // a number that is not whole
        if (!convertField(codePage, each.plan, hostRecord.data() + length, work.data() + length, bytes))
            return {Outcome::TextNotConverted, 0, &each};
        length += bytes;
    }
    return {};
}

}  // namespace record::to_pc

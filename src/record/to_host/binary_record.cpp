#include "record/to_host/binary_record.h"

#include <algorithm>

#include "record/signs.h"

namespace record::to_host {
namespace {

// False at a byte that is no digit. The last digit is not checked.
bool zonedToHost(const char* source, char* destination, std::uint32_t bytes) {
    for (std::uint32_t at = 0; at < bytes; ++at) {
        const bool last = at + 1 == bytes;
        const std::uint8_t digit = sign::lowNibble(source[at]);
        if (!last && digit > sign::LargestDigit) return false;
        const bool negative = last && sign::isNegative(sign::highNibble(source[at]));
        destination[at] = static_cast<char>((negative ? sign::HostNegativeZone : sign::HostZone) | digit);
    }
    return true;
}

bool packedToHost(const char* source, char* destination, std::uint32_t bytes) {
    for (std::uint32_t at = 0; at < bytes; ++at) {
        const bool last = at + 1 == bytes;
        const std::uint8_t high = sign::highNibble(source[at]);
        const std::uint8_t low = sign::lowNibble(source[at]);
        if (high > sign::LargestDigit || (!last && low > sign::LargestDigit)) return false;
        const std::uint8_t end = sign::isNegative(low) ? sign::HostNegative : sign::HostPositive;
        destination[at] = last ? sign::ofNibbles(high, end) : source[at];
    }
    return true;
}

Outcome convertField(const text::CodePageState& codePage, const FieldPlan& plan, const char* source,
                     char* destination) {
    switch (plan.type) {
        case Hex:
            std::copy_n(source, plan.bytes, destination);
            return Outcome::Converted;
        case Binary:
            std::reverse_copy(source, source + plan.bytes, destination);
            return Outcome::Converted;
        case Zoned:
            return zonedToHost(source, destination, plan.bytes) ? Outcome::Converted : Outcome::BadNumber;
        case Packed:
            return packedToHost(source, destination, plan.bytes) ? Outcome::Converted : Outcome::BadNumber;
        default: {
            const std::uint32_t failure = codePage.pcToHostText(source, destination, plan.bytes, plan.bytes);
            return failure == 0 ? Outcome::Converted : Outcome::TextNotConverted;
        }
    }
}

}  // namespace

ConversionResult convertBinaryRecord(const HostLayout& layout, const text::CodePageState& codePage, const char* record,
                                     std::span<char> hostRecord, std::uint32_t& length) {
    length = 0;
    std::uint32_t number = 0;
    for (const PlannedField& each : layout) {
        ++number;
        if (each.plan.bytes > hostRecord.size() - length) return {Outcome::HostRecordTooShort, number, &each};
        const Outcome outcome = convertField(codePage, each.plan, record + length, hostRecord.data() + length);
        if (outcome != Outcome::Converted) return {outcome, number, &each};
        length += each.plan.bytes;
    }
    return {};
}

}  // namespace record::to_host

#include "record/to_host/host_number.h"

#include "bytes/byte_order.h"
#include "record/signs.h"

namespace record::to_host {
namespace {

constexpr std::uint32_t LargestBinary = 8;
constexpr char HostBlank = 0x40;

// The magnitude in units of the last decimal place; false when it is larger than the limit.
bool scaledMagnitude(const DecimalText& number, std::int32_t decimals, std::uint64_t limit, std::uint64_t& magnitude) {
    magnitude = 0;
    for (std::int32_t power = number.highestPower(); power >= -decimals; --power) {
        const std::uint8_t digit = number.digitAt(power);
        if (magnitude > (limit - digit) / 10) return false;
        magnitude = 10 * magnitude + digit;
    }
    return true;
}

bool isHexDigit(char character) {
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'F') ||
           (character >= 'a' && character <= 'f');
}

}  // namespace

bool toBinary(const DecimalText& number, std::int32_t decimals, char* destination, std::uint32_t count) {
    constexpr std::int32_t AnyPlaces = 1 << 20;
    if (count == 0 || count > LargestBinary || !number.fits(AnyPlaces, decimals)) return false;
    const std::uint64_t smallest = std::uint64_t{1} << (8 * count - 1);
    std::uint64_t value = 0;
    if (!scaledMagnitude(number, decimals, number.isNegative() ? smallest : smallest - 1, value)) return false;
    if (number.isNegative()) value = ~value + 1;
    bytes::putHighFirst(destination, value, count);
    return true;
}

bool toZoned(const DecimalText& number, std::int32_t decimals, char* destination, std::uint32_t digits) {
    const auto places = static_cast<std::int32_t>(digits);
    if (digits == 0 || !number.fits(places, decimals)) return false;
    for (std::int32_t at = 0; at < places; ++at)
        destination[at] = static_cast<char>(sign::HostZone + number.digitAt(places - decimals - 1 - at));
    if (number.isNegative())
        destination[places - 1] = static_cast<char>(sign::HostNegativeZone + number.digitAt(-decimals));
    return true;
}

bool toPacked(const DecimalText& number, std::int32_t decimals, char* destination, std::uint32_t bytes,
              std::uint32_t digits) {
    const auto places = static_cast<std::int32_t>(digits);
    if (bytes == 0 || !number.fits(places, decimals)) return false;
    const std::uint32_t signAt = 2 * bytes - 1;
    for (std::uint32_t index = 0; index < signAt; ++index)
        putNibble(destination, number.digitAt(static_cast<std::int32_t>(signAt - index) - 1 - decimals), index);
    putNibble(destination, number.isNegative() ? sign::HostNegative : sign::HostPositive, signAt);
    return true;
}

bool hexTextToBytes(std::string_view pairs, char* destination) {
    for (; pairs.size() >= 2; pairs.remove_prefix(2), ++destination) {
        const char first = pairs[0];
        const char second = pairs[1];
        if (!isHexDigit(first) || second < '0' || second > '9') return false;
        *destination = first == '4' && second == '0' ? HostBlank : static_cast<char>(sign::HostZone + (second - '0'));
    }
    return pairs.empty();
}

void putNibble(char* destination, std::uint8_t value, std::uint32_t index) {
    char& byte = destination[index / 2];
    if (index % 2 == 0)
        byte = sign::ofNibbles(value, 0);
    else
        byte = sign::ofNibbles(sign::highNibble(byte), value);
}

}  // namespace record::to_host

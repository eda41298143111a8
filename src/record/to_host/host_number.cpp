#include "record/to_host/host_number.h"

#include <limits>

#include "bytes/byte_order.h"
#include "record/signs.h"

namespace record::to_host {
namespace {

constexpr std::uint32_t LargestBinary = 8;
constexpr std::uint64_t LargestTenth = std::numeric_limits<std::int32_t>::max() / 10;
constexpr char HostBlank = 0x40;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

// The digits of a working text, one after the other.
class Digits {
public:
    explicit Digits(const WorkingText& text) : text_(text), at_(text.hasSign ? 1 : 0) {
        negative_ = text.hasSign && text.characters[0] == '-';
    }

    // False at a character that cannot stand there. Not to be called more often than the text has digit positions.
    bool next(std::uint8_t& digit) {
        if (text_.hasPoint() && at_ == text_.pointAt()) ++at_;
        const char character = text_.characters[at_++];
        digit = 0;
        if (character == ' ') return true;
        if (character == '-') {
            negative_ = true;
            return !digitSeen_;
        }
        // The sixteen characters from "0" on, whose low four bits are taken as they are.
        if (sign::highNibble(character) != sign::highNibble('0')) return false;
        digitSeen_ = true;
        digit = sign::lowNibble(character);
        return true;
    }
    bool isNegative() const { return negative_; }

private:
    const WorkingText& text_;
    std::uint32_t at_;
    bool negative_;
    bool digitSeen_ = false;
};

// For an even index sets byte index / 2 to the value in its high nibble; for an odd one replaces its low nibble.
void putNibble(char* destination, std::uint8_t value, std::uint32_t index) {
    char& byte = destination[index / 2];
    byte = index % 2 == 0 ? sign::ofNibbles(value, 0) : sign::ofNibbles(sign::highNibble(byte), value);
}

}  // namespace

bool textToZoned(const WorkingText& text, char* destination, std::uint32_t digits) {
    if (digits == 0 || text.digitPositions() > digits) return false;
    Digits source(text);
    std::uint8_t digit = 0;
    for (std::uint32_t at = 0; at < digits; ++at) {
        if (!source.next(digit)) return false;
        destination[at] = static_cast<char>(sign::HostZone + digit);
    }
    if (source.isNegative()) destination[digits - 1] = static_cast<char>(sign::HostNegativeZone + digit);
    return true;
}

bool textToPacked(const WorkingText& text, char* destination, std::uint32_t bytes) {
    const std::uint32_t signAt = 2 * bytes - 1;
    const std::uint32_t count = text.digitPositions();
    if (bytes == 0 || count > signAt) return false;
    Digits source(text);
    // A number of even precision leaves a pad nibble in front.
    std::uint32_t index = count == signAt ? 0 : 1;
    if (index + count > signAt) return false;
    destination[0] = 0;
    for (; index < signAt; ++index) {
        std::uint8_t digit = 0;
        if (!source.next(digit)) return false;
        putNibble(destination, digit, index);
    }
    putNibble(destination, source.isNegative() ? sign::HostNegative : sign::HostPositive, signAt);
    return true;
}

bool BinaryNumber::put(char character) {
    if (character == '.' || character == ',') return true;
    if (character == '-' && (negative_ || digitSeen_)) return false;
    const bool leading = !isFixed_ && magnitude_ == 0 && (character == ' ' || character == '0');
    if (!leading) {
        // What stands behind the width is not read, unless it shows that no field of 32 bits holds the number.
        if (left_ == 0) return !isDigit(character) || magnitude_ <= LargestTenth;
        --left_;
    }
    if (character == ' ') return true;
    if (character == '-') {
        negative_ = true;
        return true;
    }
    if (!isDigit(character)) return false;
    digitSeen_ = true;
    const auto digit = static_cast<std::uint64_t>(character - '0');
    if (magnitude_ > (std::numeric_limits<std::uint64_t>::max() - digit) / 10) return false;
    magnitude_ = 10 * magnitude_ + digit;
    return true;
}

// What 32 bits hold is cut to the field's bytes, as 70000 into two of them: 11 70.
bool BinaryNumber::store(char* destination, std::uint32_t bytes) const {
    if (bytes == 0 || bytes > LargestBinary) return false;
    const std::uint64_t smallest = std::uint64_t{1} << (bytes <= 4 ? 31 : 63);
    if (magnitude_ > (negative_ ? smallest : smallest - 1)) return false;
    bytes::putHighFirst(destination, negative_ ? ~magnitude_ + 1 : magnitude_, bytes);
    return true;
}

bool hexTextToBytes(std::string_view pairs, char* destination) {
    for (; pairs.size() >= 2; pairs.remove_prefix(2), ++destination) {
        if (!isDigit(pairs[1])) return false;
        *destination = pairs.starts_with("40") ? HostBlank : static_cast<char>(sign::HostZone + (pairs[1] - '0'));
    }
    return pairs.empty();
}

}  // namespace record::to_host

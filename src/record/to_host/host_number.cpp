#include "record/to_host/host_number.h"

#include <cstring>
#include <limits>

#include "bytes/byte_order.h"
#include "record/signs.h"

namespace record::to_host {
namespace {

constexpr std::uint32_t LargestBinary = 8;
constexpr std::uint64_t LargestTenth = std::numeric_limits<std::int32_t>::max() / 10;
constexpr char HostBlank = 0x40;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

// The digits of a working text, a zero in front of them.
class Digits {
public:
    // False at a character that cannot stand there.
    bool read(const WorkingText& text) {
        std::memset(digits_, 0, text.length + 1);
        const char* const first = text.characters + (text.hasSign ? 1 : 0);
        const char* const end = text.characters + text.length;
        const char* const point = text.hasPoint() ? text.characters + text.pointAt() : end;
        isNegative_ = text.hasSign && text.characters[0] == '-';
        end_ = readSide(first, point, digits_ + 1);
        if (end_ && point != end) end_ = readSide(point + 1, end, end_);
        return end_ != nullptr;
    }
    const std::uint8_t* begin() const { return digits_ + 1; }
    bool isNegative() const { return isNegative_; }
    void append(std::uint8_t nibble) { *end_++ = nibble; }

private:
    // Gives the place behind the last digit; null for a failure.
    std::uint8_t* readSide(const char* character, const char* end, std::uint8_t* next) {
        bool isSeen = isSeen_;
        for (; character < end; ++character, ++next) {
            // The sixteen characters from "0" on, whose low four bits are taken as they are.
            if (sign::highNibble(*character) == sign::highNibble('0')) {
                isSeen = true;
                *next = sign::lowNibble(*character);
            } else if (*character == '-' && !isSeen) {
                isNegative_ = true;
            } else if (*character != ' ') {
                return nullptr;
            }
        }
        isSeen_ = isSeen;
        return next;
    }

    std::uint8_t digits_[1 + WorkingText::Capacity + 1];
    std::uint8_t* end_ = digits_ + 1;
    bool isNegative_ = false;
    bool isSeen_ = false;  // a digit
};

}  // namespace

bool textToZoned(const WorkingText& text, char* destination, std::uint32_t digits) {
    Digits source;
    if (digits == 0 || text.digitPositions() != digits || !source.read(text)) return false;
    for (std::uint32_t at = 0; at < digits; ++at)
        destination[at] = static_cast<char>(sign::HostZone + source.begin()[at]);
    if (source.isNegative())
        destination[digits - 1] = static_cast<char>(sign::HostNegativeZone + source.begin()[digits - 1]);
    return true;
}

bool textToPacked(const WorkingText& text, char* destination, std::uint32_t bytes) {
    const std::uint32_t places = 2 * bytes - 1;
    const std::uint32_t count = text.digitPositions();
    // A number of even precision leaves a pad nibble in front.
    const bool isPadded = count + 1 == places;
    Digits source;
    if (bytes == 0 || (count != places && !isPadded) || !source.read(text)) return false;
    source.append(source.isNegative() ? sign::HostNegative : sign::HostPositive);
    const std::uint8_t* nibbles = source.begin() - (isPadded ? 1 : 0);
    for (std::uint32_t at = 0; at < bytes; ++at, nibbles += 2)
        destination[at] = sign::ofNibbles(nibbles[0], nibbles[1]);
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

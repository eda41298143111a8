#pragma once

#include <cstdint>
#include <string_view>

// The host's forms of a number, made from text.
namespace record::to_host {

// The text form of a zoned or packed number, position by position: a sign position when it has one, then digits with
// the decimal point at its place.
struct WorkingText {
    // The widest: 255 packed bytes with sign and point.
    static constexpr std::uint32_t Capacity = 2 * 255 + 1;

    char characters[Capacity];
    std::uint32_t length;
    std::uint32_t decimals;
    bool hasSign;  // the first character is a sign or nothing, but no digit

    std::uint32_t digitPositions() const { return length - (hasSign ? 1 : 0) - (hasPoint() ? 1 : 0); }
    // In a field of more decimals than digits the point would stand on the sign.
    bool hasPoint() const { return decimals > 0 && decimals + (hasSign ? 1 : 0) < length; }
    std::uint32_t pointAt() const { return length - decimals - 1; }
};

// Both are false, with `destination` partly written, for a character that is no digit, a "-" behind a digit, or more
// digits than the field has. Blanks and a "-" in the place of a digit are zeros; whatever stands in the place of the
// point is skipped; the characters behind "9" up to "?" stand for the nibbles above 9.

// A digit per byte: F0 plus the digit, the last D0 plus the digit when negative.
bool textToZoned(const WorkingText& text, char* destination, std::uint32_t digits);
// Nibble by nibble, then the sign nibble, F or D. A text of one digit less than the bytes hold leaves the first nibble
// 0.
bool textToPacked(const WorkingText& text, char* destination, std::uint32_t bytes);

// A binary number being read, character by character.
class BinaryNumber {
public:
    // At most `width` characters count; in a number of free length those in front of the first digit other than 0 do
    // not, but for a "-".
    BinaryNumber(std::uint32_t width, bool isFixed) : left_(width), isFixed_(isFixed) {}

    // False for a character that has no place in a number, or a digit too many for 32 bits. Decimal points,
    // thousands separators and blanks are skipped wherever they stand.
    bool put(char character);

    // The low `bytes` bytes of the value, 1 to 8, high byte first. False when the value needs more than 32 bits, or 64
    // for a field of more than 4 bytes.
    bool store(char* destination, std::uint32_t bytes) const;

private:
    std::uint32_t left_;
    bool isFixed_;
    std::uint64_t magnitude_ = 0;
    bool negative_ = false;
    bool digitSeen_ = false;
};

// Pairs of hexadecimal digits: "40" is a host blank, every other pair the digit of its second character with the zone
// F, whatever its first one is. False for a second character that is no digit.
bool hexTextToBytes(std::string_view pairs, char* destination);

}  // namespace record::to_host

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host_layout.h"

// Numbers read with other eyes than the library's: what a text says, and what the host's bytes hold.
namespace checking {

// In units of the last of `decimals` places, read in one walk. Nothing for a text that is more than an ordinary number:
// beyond 18 digits, with digits behind the decimals that are no zeros, or with anything else than blanks around it.
std::optional<std::int64_t> plainUnits(std::string_view text, char decimalSeparator, std::uint32_t decimals);
// Nothing for bytes that are no number, or one beyond 18 digits.
std::optional<std::int64_t> hostUnits(const HostColumn& column, const std::uint8_t* bytes);

// A number of any size, as digits.
struct Decimal {
    bool isNegative = false;
    std::string integer;   // without zeros in front
    std::string fraction;  // without zeros behind

    bool isZero() const { return integer.empty() && fraction.empty(); }
    bool operator==(const Decimal&) const = default;
    std::string text(char decimalSeparator) const;  // "-12.5", "0.5", "0"
};

// The number that a person reads in a text: blanks around it, a sign, digits, one separator; digits in groups of three
// where `grouped` says that the field takes them. Nothing when it is no number.
std::optional<Decimal> readDecimal(std::string_view text, char decimalSeparator, bool grouped);
// Nothing for bytes that are no number.
std::optional<Decimal> hostDecimal(const HostColumn& column, const std::uint8_t* bytes);

// Digits that a number of the column may have in front of its point.
std::uint32_t integerDigits(const HostColumn& column);

std::string_view withoutBlanks(std::string_view text);  // at both ends

std::string hexDigits(std::string_view bytes);  // two for each, in capital letters

}  // namespace checking

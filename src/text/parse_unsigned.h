#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace text {

// An unsigned number of at most `maximum`. Blanks around it are ignored; a leading "0x" or "0X" selects hexadecimal,
// another leading "0" octal, otherwise decimal. Nothing when there is no digit, another character, or a larger value.
std::optional<std::uint32_t> parseUnsigned(std::string_view text, std::uint32_t maximum);

}  // namespace text

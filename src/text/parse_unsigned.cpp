#include "text/parse_unsigned.h"

#include <charconv>

#include "text/double_byte.h"

namespace text {

std::optional<std::uint32_t> parseUnsigned(std::string_view text, std::uint32_t maximum) {
    std::string_view digits = trimmed(text);
    int base = 10;
    if (startsWithNoCase(digits, "0x")) {
        base = 16;
        digits.remove_prefix(2);
    } else if (digits.starts_with('0')) {
        base = 8;
    }
    std::uint32_t value = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, base);
    if (error != std::errc() || stop != end || value > maximum) return std::nullopt;
    return value;
}

}  // namespace text

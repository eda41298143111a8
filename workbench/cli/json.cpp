#include "json.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace json {
namespace {

constexpr std::string_view Replacement = "\xEF\xBF\xBD";  // U+FFFD

// The bytes of the character that the text begins with; 0 when it begins with none: a byte out of place, a longer form
// than needed, half of a surrogate pair, or beyond the last character.
std::size_t characterLength(std::string_view text) {
    const auto byte = [text](std::size_t place) { return static_cast<std::uint8_t>(text[place]); };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80) return 1;
    const std::size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (length == 0 || length > text.size()) return 0;
    for (std::size_t place = 1; place < length; ++place) {
        if ((byte(place) & 0xC0) != 0x80) return 0;
    }
    const std::uint8_t second = byte(1);
    const bool isLonger = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool isBeyond = (lead == 0xED && second >= 0xA0) || (lead == 0xF4 && second >= 0x90);
    return isLonger || isBeyond ? 0 : length;
}

std::string escaped(char byte) {
    switch (byte) {
        case '"':
            return "\\\"";
        case '\\':
            return "\\\\";
        case '\n':
            return "\\n";
        case '\r':
            return "\\r";
        case '\t':
            return "\\t";
        default:
            break;
    }
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "\\u%04X", static_cast<unsigned>(byte));
    return text.data();
}

bool needsEscape(char byte) {
    const auto value = static_cast<std::uint8_t>(byte);
    return value < 0x20 || value == 0x7F || byte == '"' || byte == '\\';
}

}  // namespace

std::string string(std::string_view utf8) {
    std::string text = "\"";
    while (!utf8.empty()) {
        const std::size_t length = characterLength(utf8);
        if (length == 0) {
            text += Replacement;
        } else if (needsEscape(utf8.front())) {
            text += escaped(utf8.front());
        } else {
            text += utf8.substr(0, length);
        }
        utf8.remove_prefix(length == 0 ? 1 : length);
    }
    return text + "\"";
}

std::string array(const std::vector<std::string>& values) {
    std::string text;
    for (const std::string& value : values) text += (text.empty() ? "" : ",") + value;
    return "[" + text + "]";
}

Object& Object::value(std::string_view name, const std::string& json) {
    members_ += (members_.empty() ? "" : ",") + string(name) + ":" + json;
    return *this;
}

}  // namespace json

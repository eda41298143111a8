#include "record/quoting.h"

#include <algorithm>
#include <cstring>

#include "text/double_byte.h"

namespace record {
namespace {

std::size_t countQuotes(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += text::characterBytes(text.substr(at))) count += text[at] == '"';
    return count;
}

}  // namespace

std::size_t doubleQuotes(char* text, std::size_t length, std::size_t capacity) {
    std::size_t quotes = countQuotes({text, length});
    const std::size_t doubled = length + quotes;
    if (doubled >= capacity) return length;
    for (std::size_t at = 0; quotes > 0; --quotes) {
        at += text::findCharacter({text + at, length - at}, '"');
        std::memmove(text + at + 1, text + at, length - at);
        ++length;
        at += 2;
    }
    text[doubled] = '\0';
    return doubled;
}

void blankOutNulls(char* bytes, std::size_t count) {
    // Most records have none.
    if (std::string_view(bytes, count).find('\0') == std::string_view::npos) return;
    std::replace(bytes, bytes + count, '\0', ' ');
}

}  // namespace record

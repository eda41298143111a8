#include "utf8.h"

#include <algorithm>
#include <cstdint>

#include "page_data.h"

namespace codepages {
namespace {

bool isContinuation(char byte) { return (std::uint8_t(byte) & 0xC0) == 0x80; }

struct Lead {
    unsigned continuations;
    std::uint32_t bits;
    std::uint32_t least;  // smaller values have a shorter form
};

Lead classify(std::uint8_t byte) {
    if (byte < 0x80) return {0, byte, 0};
    if (byte >= 0xC2 && byte < 0xE0) return {1, byte & 0x1Fu, 0x80};
    if (byte >= 0xE0 && byte < 0xF0) return {2, byte & 0x0Fu, 0x800};
    if (byte >= 0xF0 && byte < 0xF5) return {3, byte & 0x07u, 0x10000};
    return {0, NoCharacter, 0};
}

}  // namespace

char16_t takeUtf8(std::string_view& text) {
    const Lead lead = classify(std::uint8_t(text.front()));
    text.remove_prefix(1);
    std::uint32_t value = lead.bits;
    for (unsigned at = 0; at < lead.continuations; ++at) {
        if (text.empty() || !isContinuation(text.front())) return NoCharacter;
        value = value << 6 | (std::uint8_t(text.front()) & 0x3F);
        text.remove_prefix(1);
    }
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    return value < lead.least || value > 0xFFFF || isSurrogate ? NoCharacter : char16_t(value);
}

void appendUtf8(std::string& text, char16_t character) {
    if (character < 0x80) {
        text += char(character);
        return;
    }
    if (character < 0x800) {
        text += char(0xC0 | character >> 6);
    } else {
        text += char(0xE0 | character >> 12);
        text += char(0x80 | (character >> 6 & 0x3F));
    }
    text += char(0x80 | (character & 0x3F));
}

std::size_t wholeUtf8Length(std::string_view text, std::size_t limit) {
    std::size_t length = std::min(text.size(), limit);
    while (length > 0 && length < text.size() && isContinuation(text[length])) --length;
    return length;
}

}  // namespace codepages

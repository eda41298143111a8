#include "text/double_byte.h"

#include <algorithm>
#include <cstring>

namespace text {
namespace {

constexpr std::uint16_t PrimaryLanguageMask = 0x03FF;
constexpr int SubLanguageShift = 10;
constexpr std::uint16_t Chinese = 0x04;
constexpr std::uint16_t Japanese = 0x11;
constexpr std::uint16_t Korean = 0x12;

char lowerAscii(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool isAscii(std::string_view text) {
    constexpr std::uint64_t HighBits = 0x8080808080808080;
    for (std::uint64_t eight = 0; text.size() >= sizeof(eight); text.remove_prefix(sizeof(eight))) {
        std::memcpy(&eight, text.data(), sizeof(eight));
        if (eight & HighBits) return false;
    }
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<std::uint8_t>(byte) < 0x80; });
}

}  // namespace

BlankPair blankPairOf(std::uint16_t languageId) {
    const int subLanguage = languageId >> SubLanguageShift;
    switch (languageId & PrimaryLanguageMask) {
        case Japanese:
            return {0x81, 0x40};
        case Korean:
            return {0xA1, 0xA1};
        case Chinese:
            if (subLanguage == 1) return {0xA1, 0x40};
            if (subLanguage == 2) return {0xA1, 0xA1};
            return {};
        default:
            return {};
    }
}

BlankPair userBlankPair() {
    static const BlankPair pair = blankPairOf(platform::GetUserDefaultLangID());
    return pair;
}

std::size_t blankBytes(std::string_view text, BlankPair pair) {
    if (text.empty()) return 0;
    if (text[0] == ' ') return 1;
    if (pair.first == 0 || text.size() < 2) return 0;
    return static_cast<std::uint8_t>(text[0]) == pair.first && static_cast<std::uint8_t>(text[1]) == pair.second ? 2
                                                                                                                 : 0;
}

std::string_view trimmedStart(std::string_view text, BlankPair pair) {
    while (const std::size_t blank = blankBytes(text, pair)) text.remove_prefix(blank);
    return text;
}

// Fields are padded: there are many.
std::string_view withoutSpaces(std::string_view text) {
    constexpr std::string_view Eight = "        ";
    while (text.ends_with(Eight)) text.remove_suffix(Eight.size());
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

std::string_view trimmedEnd(std::string_view text, BlankPair pair) {
    if (pair.first == 0) return withoutSpaces(text);
    std::size_t end = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view rest = text.substr(at);
        const std::size_t blank = blankBytes(rest, pair);
        at += blank ? blank : characterBytes(rest);
        if (!blank) end = at;
    }
    return text.substr(0, end);
}

std::size_t findCharacter(std::string_view text, char character) {
    const std::size_t found = text.find(character);
    if (found == std::string_view::npos || isAscii(text.substr(0, found))) return found;
    for (std::size_t at = 0; at < text.size(); at += characterBytes(text.substr(at)))
        if (text[at] == character) return at;
    return std::string_view::npos;
}

bool startsWithNoCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(),
                      [](char left, char right) { return lowerAscii(left) == lowerAscii(right); });
}

void copyCut(std::string_view text, char* destination, std::size_t capacity) {
    std::size_t length = std::min(text.size(), capacity - 1);
    if (length < text.size()) {
        std::size_t whole = 0;
        for (std::size_t at = 0; at <= length; at += characterBytes(text.substr(at))) whole = at;
        length = whole;
    }
    std::copy_n(text.data(), length, destination);
    destination[length] = '\0';
}

}  // namespace text

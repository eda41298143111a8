#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/platform.h"

// Walking over text in the PC code page. A byte of 0x80 or above that the operating system takes for a lead byte starts
// a two-byte character, which is never split.
namespace text {

// The double-byte blank of the user's default language; `first` is 0 when it has none.
struct BlankPair {
    std::uint8_t first = 0;
    std::uint8_t second = 0;
};

// By language: Japanese 81 40, Korean A1 A1, Chinese A1 40 (sub-language 1) and A1 A1 (sub-language 2), others none.
BlankPair blankPairOf(std::uint16_t languageId);
// That of the user, worked out once per process.
BlankPair userBlankPair();

inline bool isLeadByte(char byte) {
    const auto value = static_cast<std::uint8_t>(byte);
    return value >= 0x80 && platform::IsDBCSLeadByte(value);
}

// Bytes of the character at the start of a text that is not empty: 1, or 2 for a lead byte with its trail byte.
inline std::size_t characterBytes(std::string_view text) { return text.size() > 1 && isLeadByte(text[0]) ? 2 : 1; }

// Bytes of the blank at the start of the text, 0 when there is none.
std::size_t blankBytes(std::string_view text, BlankPair pair);

// Cut behind the last byte that is no space. No trail byte of any PC code page is one.
std::string_view withoutSpaces(std::string_view text);
std::string_view trimmedStart(std::string_view text, BlankPair pair = userBlankPair());
// Cut at the start of the final run of blanks.
std::string_view trimmedEnd(std::string_view text, BlankPair pair = userBlankPair());
inline std::string_view trimmed(std::string_view text) { return trimmedEnd(trimmedStart(text)); }

// Position of the first `character` that is no trail byte, or npos.
std::size_t findCharacter(std::string_view text, char character);

// Whether `text` begins with `prefix`, ASCII letters compared without regard to case.
bool startsWithNoCase(std::string_view text, std::string_view prefix);
// Whether a line begins with a word, compared in the same way. Of most lines the first byte tells that it does not.
inline bool beginsWithWord(std::string_view line, std::string_view word) {
    constexpr int CaseBit = 0x20;
    return !line.empty() && (line[0] | CaseBit) == (word[0] | CaseBit) && startsWithNoCase(line, word);
}

// Copies `text` cut to at most `capacity` - 1 bytes of whole characters, terminated.
void copyCut(std::string_view text, char* destination, std::size_t capacity);

}  // namespace text

#pragma once

#include <string>
#include <string_view>

namespace codepages {

// Takes the next character off the front of a text that is not empty. A malformed sequence is one NoCharacter, and what
// cannot belong to it stays; so is a character above U+FFFF, which no page here has.
char16_t takeUtf8(std::string_view& text);

void appendUtf8(std::string& text, char16_t character);

// Length of the longest beginning of a well-formed text that has at most `limit` bytes and ends with a whole character.
std::size_t wholeUtf8Length(std::string_view text, std::size_t limit);

}  // namespace codepages

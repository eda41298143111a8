#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "as400/field.h"
#include "codepages/codepages.h"

// Texts on their way between the database (UTF-8), host records (EBCDIC) and the PC's requests.
namespace as400 {

// Fills `out` with the text in the host code page, blank-padded. A text that is too long is cut between characters, and
// double-byte text always ends with its shift-in. Fields of type DoubleByte take full-width forms of ASCII characters
// and a double-byte blank for what has none.
void encodeText(std::string_view utf8, FieldType type, const codepages::CodePage& page, std::span<std::uint8_t> out);

// Back into `utf8`, without the blanks (of either width) at the end.
void decodeText(std::span<const std::uint8_t> bytes, const codepages::CodePage& page, std::string& utf8);

// Bytes that the text takes in the host code page, without padding.
std::size_t encodedLength(std::string_view utf8, const codepages::CodePage& page);

// The PC's text in UTF-8. pcPage 0: UTF-8 where it is, else code page 1252.
std::string fromPc(std::string_view text, std::uint32_t pcPage);
std::string toPc(std::string_view utf8, std::uint32_t pcPage);  // pcPage 0: UTF-8

// A page that the data file has, or a Refusal.
const codepages::CodePage& hostPage(std::uint32_t number);

}  // namespace as400

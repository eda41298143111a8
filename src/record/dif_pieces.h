#pragma once

#include <string_view>

// The text pieces of DIF files, the same for writing and reading. Lines end with CR LF.
namespace record::dif {

// Header; the two numbers are the vector count and the tuple count.
inline constexpr char HeaderTemplate[] =
    "TABLE\r\n0,1\r\n\"\"\r\nVECTORS\r\n0,%ld\r\n\"\"\r\nTUPLES\r\n0,%ld\r\n\"\"\r\nDATA\r\n0,0\r\n\"\"\r\n";
inline constexpr std::string_view BeginTuple = "-1,0\r\nBOT\r\n";
inline constexpr std::string_view StringHead = "1,0\r\n";
inline constexpr std::string_view NumberEnd = "\r\nV\r\n";
inline constexpr std::string_view EndOfData = "-1,0\r\nEOD\r\n";
inline constexpr std::string_view NumberHead = "0,";
inline constexpr std::string_view LineEnd = "\r\n";
// Read only.
inline constexpr std::string_view SpecialHead = "-1,0";
inline constexpr std::string_view BeginWord = "BOT";
inline constexpr std::string_view EndWord = "EOD";

}  // namespace record::dif

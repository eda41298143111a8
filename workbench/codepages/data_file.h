#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "page_data.h"

// The data file of the code pages. All numbers are least significant byte first.
//
//     0  8 bytes  "Z7XCPDAT"
//     8  u32      version
//    12  u32      length of the whole file
//    16  u32      number of pages n
//    20  n times  u32 page number, u32 flags, u32 offset and u32 length of the page's body
//        bodies   two pages with the same tables may share one
//    end - 16     u8[16]: what the pages were made from, as "ICU 72.1", with zeros behind
//
// A body:
//
//     u16[256]    character of each single byte, 0xFFFD = none
//     PC pages:   u8[32] lead bytes as bits (byte b is bit b % 8 of b / 8), u8[256] upper case, u8[256] lower case
//     double-byte pages:
//       u8[256]   row of each first byte, 0xFF = none; the rows are numbered from 0 without a gap
//       rows      u16[256] each: character of each second byte, 0xFFFD = none
//     u32 count, then count times u16 character and u16 code: the preferences
namespace codepages {

inline constexpr std::string_view DataFileMagic{"Z7XCPDAT"};
inline constexpr std::uint32_t DataFileVersion = 2;
inline constexpr std::uint32_t DataFileHeaderLength = 20;
inline constexpr std::uint32_t DataFileEntryLength = 16;
inline constexpr std::uint32_t DataFileOriginLength = 16;
inline constexpr std::uint32_t HostPageFlag = 1;
inline constexpr std::uint32_t DoubleBytePageFlag = 2;
inline constexpr std::uint8_t NoFileRow = 0xFF;

// The file's bytes. No page may have more than 255 rows; of the origin 16 characters are taken.
std::string composeDataFile(const std::vector<PageData>& pages, std::string_view origin);

// A page as the file's list names it.
struct PageEntry {
    std::uint32_t number = 0;
    bool host = false;
    bool doubleByte = false;
    std::string_view body;  // in the file's bytes
};

// The list of a file's pages, whose bodies have been looked over. Nothing, with a sentence in `error`, when the bytes
// are not a data file or not a whole one.
std::optional<std::vector<PageEntry>> readEntries(std::string_view file, std::string* error);

// What the pages of a file whose entries could be read were made from.
std::string readOrigin(std::string_view file);

// The tables of a page that readEntries gave.
PageData readPage(const PageEntry& entry);

}  // namespace codepages

#pragma once

#include <cstddef>
#include <string_view>

namespace record::to_host {

inline constexpr char EndOfFileByte = 26;

// How the records of a text-like PC file are told apart.
enum class RecordKind {
    Line,   // ended by CR, LF or byte 26
    Tuple,  // DIF: ended by the "-1,0" and "BOT" lines that open the next tuple, which belong to the record
};

// Looks for the end of the record that begins at `index` and moves the index to its terminator: in a tuple that of the
// BOT line. False, with the index as it was, when the buffer does not hold the whole record. A CR or LF in the last
// place of the buffer is no terminator, since the other half of a pair may be the next byte of the file; byte 26 is.
bool findRecordEnd(RecordKind kind, std::string_view buffer, std::size_t& index);

// Bytes of a record's terminator and of the line feed behind it, if there is one.
std::size_t terminatorBytes(std::string_view buffer, std::size_t index);

}  // namespace record::to_host

#pragma once

#include <cstddef>
#include <string_view>

#include "settings/pc_file_types.h"

namespace record::to_host {

inline constexpr char EndOfFileByte = 26;

// Looks for the end of the record that begins at `index` and moves the index to its terminator. A line is ended by CR,
// LF or byte 26; a tuple by the "-1,0" and "BOT" lines that open the next one, which belong to the record: its
// terminator is that of the BOT line. False, with the index as it was, when the buffer does not hold the whole record.
// A CR or LF in the last place of the buffer is no terminator, since the other half of a pair may be the next byte of
// the file; byte 26 is.
bool findRecordEnd(settings::RecordForm form, std::string_view buffer, std::size_t& index);

// Bytes of a record's terminator and of the line feed behind it, if there is one.
std::size_t terminatorBytes(std::string_view buffer, std::size_t index);

}  // namespace record::to_host

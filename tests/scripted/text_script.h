#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>

// The script of the text-script provider: one answer a line, used in the order of the lines of its function.
//
//     # a comment; empty lines count for nothing
//     FUNCTION CODE DETAIL [PIECE ...]
//
//     FUNCTION   SEND_REQUEST, GET_FIELD, GET_DATA, END_REQUEST, RESET, PUT_DATA or END_DATA
//     CODE       the return code, hexadecimal
//     DETAIL     the detail, hexadecimal
//     PIECE      hex:0102FF        bytes
//                text:"QGPL/CUST"  the bytes of the text
//                ebcdic:"CUST"     the text in host code page 37 (printable ASCII only)
//                fill:40:20        up to a total of 40 bytes (decimal) with the byte 20 (hexadecimal)
//
// The pieces of a line make up the data. A quote inside a text is doubled. Behind the last line of its function a fetch
// is answered with "no more data" (1FFF), everything else with success. RESET starts the script anew.
namespace textscript {

struct Answer {
    std::uint32_t returnCode = 0;
    std::uint32_t detail = 0;
    std::string bytes;
};

using Script = std::map<std::uint32_t, std::deque<Answer>>;  // by function code

// False, with the line's number in `errorLine`, when a line is none of the above.
bool parse(const std::string& text, Script* script, int* errorLine);

}  // namespace textscript

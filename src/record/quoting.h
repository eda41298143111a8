#pragma once

#include <cstddef>
#include <string_view>

namespace record {

// Writes each double quote that is not part of a two-byte character twice, in place: `length` bytes with room for
// `capacity`. Terminates the text and gives its new length. A text that would reach the capacity is left as it is.
std::size_t doubleQuotes(char* text, std::size_t length, std::size_t capacity);

// Replaces every zero byte by a blank.
void blankOutNulls(char* bytes, std::size_t count);

}  // namespace record

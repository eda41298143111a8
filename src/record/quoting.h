#pragma once

#include <cstddef>
#include <string_view>

namespace record {

// Copies `source`, writing each double quote that is not part of a two-byte character twice, and terminates the copy.
// False as soon as the bytes written reach the capacity.
bool doubleQuotes(std::string_view source, char* destination, std::size_t capacity);

// The same in place, for `length` bytes with room for `capacity`; the new length. A text that would reach the capacity
// is left as it is.
std::size_t doubleQuotesInPlace(char* text, std::size_t length, std::size_t capacity);

// Replaces every zero byte by a blank.
void blankOutNulls(char* bytes, std::size_t count);

}  // namespace record

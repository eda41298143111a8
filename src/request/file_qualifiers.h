#pragma once

#include <cstdint>
#include <string_view>

#include "text/text_buffer.h"

namespace request {

// The file of one element of a host file list ("LIB/FILE(MBR), FILE2"): the name without library and member. Elements
// are separated by blanks and commas. `number` counts from 1; empty when the list has fewer elements.
std::string_view fileOfElement(std::string_view hostFiles, std::uint32_t number);

// Replaces the correlation qualifiers "t1.", "T1.", "t2." ... by the name of the file they stand for, in capital
// letters and with its point, in everything from `start` on. Plain text replacement, literals included; inserted names
// are not searched again. Only after Replaced may the text be used.
enum class Replacement { Replaced, DoesNotFit, NoMemory };
Replacement replaceQualifiers(text::TextBuffer& text, std::uint32_t start, std::string_view hostFiles);

}  // namespace request

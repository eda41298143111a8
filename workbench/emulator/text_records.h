#pragma once

#include <string_view>

#include "host/types.h"

// Texts in memory that the library and the emulator share.
namespace emulator {

std::string_view textOf(const host::TextRecord& record);

// By the record's rules: a text with a capacity stays as it was when the new one does not fit, and so does one that
// cannot grow. Returns whether the new text is there.
bool storeText(host::TextRecord& record, std::string_view text);

}  // namespace emulator

#pragma once

#include <string_view>

#include "Z7XFRPCS/types.h"

// Texts in memory that the library and the emulator share.
namespace emulator {

std::string_view textOf(const ZhstTextRecord& record);

// By the record's rules: a text with a capacity stays as it was when the new one does not fit, and so does one that
// cannot grow. Returns whether the new text is there.
bool storeText(ZhstTextRecord& record, std::string_view text);

}  // namespace emulator

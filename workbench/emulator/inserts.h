#pragma once

#include <span>
#include <string>
#include <string_view>

namespace emulator {

// Puts the inserts in the places of %1 to %9. An insert is not searched for further places; a place without an insert
// stays as it is.
std::string fillInserts(std::string_view text, std::span<const std::string> inserts);

}  // namespace emulator

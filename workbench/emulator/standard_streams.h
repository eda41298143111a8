#pragma once

#include <string>
#include <string_view>

namespace emulator {

// The name of a PC file that is none.
inline constexpr std::string_view StandardStream = "-";

// What stands for the PC file "-" where one is read; empty where none does.
const std::string& standardInputFile();
// The bytes of a PC file as they are written to the standard output.
std::string asStandardOutput(std::string_view bytes);
void resetStandardStreams();

}  // namespace emulator

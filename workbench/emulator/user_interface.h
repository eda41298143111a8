#pragma once

#include "emulator/emulator.h"

namespace emulator {

// The user that is set, never none.
UserInterface& userInterface();
// The shell, which is played by the user interface; file and parameters are there.
std::int32_t askShell(std::uint32_t owner, const char* verb, const char* file, const char* parameters,
                      const char* directory, std::int32_t showState);

}  // namespace emulator

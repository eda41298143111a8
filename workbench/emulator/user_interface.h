#pragma once

#include "emulator/emulator.h"

namespace emulator {

// The user that is set, never none.
UserInterface& userInterface();
// The shell, which is played by the user interface; both texts are there.
std::int32_t askShell(const char* file, const char* parameters);

}  // namespace emulator

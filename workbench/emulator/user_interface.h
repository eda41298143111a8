#pragma once

#include "emulator/emulator.h"

// The user that is set, never none.
namespace emulator {

UserInterface& userInterface();

}  // namespace emulator

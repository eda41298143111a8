#pragma once

namespace emulator {

void resetCommands();

}  // namespace emulator

#pragma once

// The emulator's heap, seen from the rest of the emulator.
namespace emulator::memory {

// Counts from zero again. Blocks that are still live stay valid, but no longer count.
void reset();

}  // namespace emulator::memory

#pragma once

#include <cstdint>

#include "emulator/emulator.h"

// The faults that a program asked for, and how far they still are.
namespace emulator {

extern Faults wantedFaults;
inline const Faults& faults() { return wantedFaults; }

bool countAllocation();
bool countWrite(std::uint32_t length);

// Counts one allocation; false when it is to fail.
inline bool allocationAllowed() { return faults().failAllocation == 0 || countAllocation(); }
// Counts the bytes of one write to a file; false when it is to fail, and then none of them count.
inline bool writeAllowed(std::uint32_t length) { return faults().failWriteAfterBytes < 0 || countWrite(length); }

}  // namespace emulator

#pragma once

#include <cstdint>

#include "emulator/emulator.h"

// The faults that a program asked for, and how far they still are.
namespace emulator {

const Faults& faults();

// Counts one allocation; false when it is to fail.
bool allocationAllowed();
// Counts the bytes of one write to a file; false when it is to fail, and then none of them count.
bool writeAllowed(std::uint32_t length);

}  // namespace emulator

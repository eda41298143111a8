#pragma once

#include <string>

#include "Z7XFRPCS/objects.h"

namespace emulator {

// The path services (kind 2).
extern const ZhstPathOperations pathOperations;

// The emulator's own current directory, as a PC path; empty while it is the process's. A relative name stands in it.
const std::string& currentDirectory();
void resetPathServices();

}  // namespace emulator

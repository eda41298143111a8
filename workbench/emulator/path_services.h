#pragma once

#include <string>

namespace emulator {

void* const* pathServicesTable();

// The emulator's own current directory, as a PC path; empty while it is the process's. A relative name stands in it.
const std::string& currentDirectory();
void resetPathServices();

}  // namespace emulator

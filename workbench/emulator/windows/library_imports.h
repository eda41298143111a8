#pragma once

namespace emulator {

// Leads the calls that the transfer library (once it is loaded) and the program make of one of the operating system's
// functions elsewhere, by the tables of addresses that the loader filled for them.
void redirectImport(const char* function, void* replacement);

}  // namespace emulator

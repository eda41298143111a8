#pragma once

#include <cstdio>
#include <optional>
#include <string>

// What the emulator asks of the platform folder beside it.
namespace emulator {

// The folder of the emulator library, without a separator at its end.
std::string ownFolder();

// The shell and the global memory of the PC now ask this emulator.
void connectDesktop();
// The PC as it is when nobody has set one up.
void resetPc();

// The path of a library by bare name in the provider folder, or of a PC file of that name. Empty when there is neither.
std::optional<std::string> findLibrary(const char* name);

// Opens a path that nativePath gave, as std::fopen does.
std::FILE* openNative(const std::string& nativePath, const char* mode);

std::uint32_t loadedModules();
void resetModules();

}  // namespace emulator

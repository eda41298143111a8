#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

#include "Z7XFRPCS/types.h"

// What the emulator asks of the platform folder beside it.
namespace emulator {

// The folder of the emulator library, without a separator at its end.
std::string ownFolder();

// The shell and the global memory of the PC now ask this emulator.
void connectDesktop();
// The PC as it is when nobody has set one up.
void resetPc();

// Loads the library of that whole path. Returns 0, or the PC's error number with a null module.
std::uint32_t openModule(const std::filesystem::path& path, ZhstModule* module);
void closeModule(ZhstModule module);

// Opens a path that nativePath gave, as std::fopen does.
std::FILE* openNative(const std::filesystem::path& nativePath, const char* mode);
// For writing from its start, with what is in it; an empty file is made when there is none.
std::FILE* openNativeAsItIs(const std::filesystem::path& nativePath);

}  // namespace emulator

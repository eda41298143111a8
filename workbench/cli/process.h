#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

// The process and the desktop that it runs on.
namespace process {

std::filesystem::path executableFolder();

// Where the operating system has the data of a user's programs; empty when neither of these variables says so.
std::filesystem::path dataFolder();
extern const char* const DataFolderVariables;  // "A nor B"

bool hasDesktop();

// Asks the desktop for the program of a file, without waiting for it. 33, or the error number of a shell: 2 when
// there is nothing to ask.
std::int32_t openOnDesktop(const std::filesystem::path& path);

}  // namespace process

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

// The process and the desktop that it runs on.
namespace process {

std::filesystem::path executableFolder();

// For the libraries that are loaded into this process.
void setEnvironment(const char* name, const std::string& value);

bool hasDesktop();

// Asks the desktop for the program of a file, without waiting for it. 33, or the error number of a shell: 2 when
// there is nothing to ask.
std::int32_t openOnDesktop(const std::string& path);

}  // namespace process

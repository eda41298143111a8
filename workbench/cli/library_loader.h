#pragma once

#include <filesystem>
#include <string>
#include <vector>

// What the operating system does to load a library at run time.
namespace loader {

// The names under which the transfer library may stand beside the program, the first choice first.
std::vector<std::string> libraryFileNames();

// Null, with the reason in `error`, when the file cannot be loaded. A library stays until the process ends.
void* open(const std::filesystem::path& file, std::string* error);

// The address of an export, or null.
void* find(void* library, const char* name);

}  // namespace loader

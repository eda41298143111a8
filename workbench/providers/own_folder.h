#pragma once

#include <filesystem>

namespace providers {

// The folder that the library this code stands in was loaded from; empty when the operating system does not tell.
std::filesystem::path ownFolder();

}  // namespace providers

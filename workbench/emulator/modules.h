#pragma once

#include <cstdint>
#include <optional>
#include <string>

// The libraries the emulator loads for the transfer component.
namespace emulator {

// The path of a library by bare name in the provider folder, or of a PC file of that name. Empty when there is neither.
// The case of the name does not matter.
std::optional<std::string> findLibrary(const char* name);

std::uint32_t loadedModules();
void resetModules();

}  // namespace emulator

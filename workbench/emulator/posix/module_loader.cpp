#include <dlfcn.h>

#include "emulator/platform_side.h"

namespace emulator {

// The PC's error number for whatever is wrong with the library.
constexpr std::uint32_t NotALibrary = 193;

std::uint32_t openModule(const std::filesystem::path& path, ZhstModule* module) {
    *module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    return *module ? 0 : NotALibrary;
}

void closeModule(ZhstModule module) { dlclose(module); }

}  // namespace emulator

#include <dlfcn.h>

#include <filesystem>

#include "emulator/platform_side.h"

namespace emulator {

std::string ownFolder() {
    static const std::string folder = [] {
        Dl_info info;
        if (dladdr(reinterpret_cast<const void*>(&ownFolder), &info) == 0) return std::string(".");
        return std::filesystem::absolute(info.dli_fname).parent_path().string();
    }();
    return folder;
}

}  // namespace emulator

#include "own_folder.h"

#include <dlfcn.h>

namespace providers {

std::filesystem::path ownFolder() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&ownFolder), &info) == 0 || !info.dli_fname) return {};
    return std::filesystem::absolute(info.dli_fname).parent_path();
}

}  // namespace providers

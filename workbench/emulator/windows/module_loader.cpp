#include <windows.h>

#include "emulator/platform_side.h"

namespace emulator {

std::uint32_t openModule(const std::filesystem::path& path, ZhstModule* module) {
    // What a provider needs itself is looked for beside it. The call wants backslashes then.
    std::filesystem::path whole = path;
    *module = LoadLibraryExW(whole.make_preferred().c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    return *module ? 0 : GetLastError();
}

void closeModule(ZhstModule module) { FreeLibrary(static_cast<HMODULE>(module)); }

}  // namespace emulator

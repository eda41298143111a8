#include <windows.h>

#include <filesystem>

#include "emulator/platform_side.h"

namespace emulator {

std::string ownFolder() {
    static const std::string folder = [] {
        constexpr DWORD FromAddress =
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
        HMODULE module = nullptr;
        wchar_t path[MAX_PATH];
        if (!GetModuleHandleExW(FromAddress, reinterpret_cast<LPCWSTR>(&ownFolder), &module)) return std::string(".");
        const DWORD length = GetModuleFileNameW(module, path, MAX_PATH);
        if (length == 0 || length == MAX_PATH) return std::string(".");
        return std::filesystem::path(path, path + length).parent_path().string();
    }();
    return folder;
}

}  // namespace emulator

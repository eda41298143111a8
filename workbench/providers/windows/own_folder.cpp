#include "own_folder.h"

#include <windows.h>

namespace providers {

std::filesystem::path ownFolder() {
    constexpr DWORD FromAddress = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH];
    if (!GetModuleHandleExW(FromAddress, reinterpret_cast<LPCWSTR>(&ownFolder), &module)) return {};
    const DWORD length = GetModuleFileNameW(module, path, MAX_PATH);
    if (length == 0 || length == MAX_PATH) return {};
    return std::filesystem::path(path, path + length).parent_path();
}

}  // namespace providers

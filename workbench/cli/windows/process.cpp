#include "process.h"

#include <windows.h>

#include <shellapi.h>

#include "environment/environment.h"
#include "environment/utf8_path.h"

namespace process {

std::filesystem::path executableFolder() {
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    if (length == 0 || length == MAX_PATH) return std::filesystem::current_path();
    return std::filesystem::path(path, path + length).parent_path();
}

const char* const DataFolderVariables = "LOCALAPPDATA nor APPDATA";

std::filesystem::path dataFolder() {
    const std::filesystem::path local = utf8Path(environment::variable("LOCALAPPDATA"));
    return local.empty() ? utf8Path(environment::variable("APPDATA")) : local;
}

bool hasDesktop() { return true; }

std::int32_t openOnDesktop(const std::filesystem::path& path) {
    const std::filesystem::path whole = std::filesystem::absolute(path).make_preferred();
    const HINSTANCE result = ShellExecuteW(nullptr, L"open", whole.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(result));
}

}  // namespace process

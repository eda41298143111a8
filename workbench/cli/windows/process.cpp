#include "process.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdlib>

namespace process {

std::filesystem::path executableFolder() {
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    if (length == 0 || length == MAX_PATH) return std::filesystem::current_path();
    return std::filesystem::path(path, path + length).parent_path();
}

// Through the C library, whose own copy is what std::getenv reads; it passes the change on to the process.
void setEnvironment(const char* name, const std::string& value) { _putenv((name + ("=" + value)).c_str()); }

std::filesystem::path environmentPath(const char* name) {
    const wchar_t* value = _wgetenv(std::filesystem::path(name).c_str());
    return value != nullptr ? value : L"";
}

const char* const DataFolderVariables = "LOCALAPPDATA nor APPDATA";

std::filesystem::path dataFolder() {
    const std::filesystem::path local = environmentPath("LOCALAPPDATA");
    return local.empty() ? environmentPath("APPDATA") : local;
}

bool hasDesktop() { return true; }

std::int32_t openOnDesktop(const std::string& path) {
    const std::filesystem::path whole = std::filesystem::absolute(path).make_preferred();
    const HINSTANCE result = ShellExecuteW(nullptr, L"open", whole.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(result));
}

}  // namespace process

#include "environment/environment.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdlib>
#include <string_view>

// The texts that main and std::getenv have are in the PC's ANSI code page, and have lost what that lacks.

namespace environment {
namespace {

std::string narrow(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), 0);
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring wide(std::string_view text) {
    const int length = static_cast<int>(text.size());
    std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)), 0);
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), static_cast<int>(result.size()));
    return result;
}

}  // namespace

std::string variable(const char* name) {
    const std::wstring wideName = wide(name);
    std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), 0);
    // The length with the zero behind it, or without when it was written.
    value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size())));
    return narrow(value);
}

// Through the C library, whose own copy is what std::getenv reads; it passes the change on to the process.
void set(const char* name, const std::string& value) { _wputenv_s(wide(name).c_str(), wide(value).c_str()); }

// From the line as it was typed: the C library replaces patterns by the names of files, which other systems leave to a
// shell that can be told not to.
std::vector<std::string> arguments(int, char**) {
    std::vector<std::string> result;
    int count = 0;
    wchar_t** const line = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; line && i < count; ++i) result.push_back(narrow(line[i]));
    LocalFree(line);
    return result;
}

}  // namespace environment

#include "platform/platform.h"

#include <windows.h>

namespace platform {
namespace {

HWND windowOf(std::uint32_t handle) { return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(handle)); }

std::uint32_t handleOf(HWND window) { return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(window)); }

}  // namespace

void* GetProcAddress(void* module, const char* name) {
    // Without a module the real call would search the program itself.
    if (!module || !name) return nullptr;
    return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(module), name));
}

std::int32_t LoadStringA(void* module, std::uint32_t id, char* buffer, std::int32_t size) {
    if (!buffer || size <= 0) return 0;
    buffer[0] = 0;
    return module ? ::LoadStringA(static_cast<HINSTANCE>(module), id, buffer, size) : 0;
}

std::uint32_t GetCurrentProcessId() { return ::GetCurrentProcessId(); }

void* GlobalAlloc(std::uint32_t flags, std::uint32_t size) { return ::GlobalAlloc(flags, size); }
void* GlobalLock(void* handle) { return ::GlobalLock(handle); }
void GlobalUnlock(void* handle) { ::GlobalUnlock(handle); }
void GlobalFree(void* handle) { ::GlobalFree(handle); }

std::uint32_t GetTickCount() { return ::GetTickCount(); }
void Sleep(std::uint32_t milliseconds) { ::Sleep(milliseconds); }

bool IsWindow(std::uint32_t window) { return ::IsWindow(windowOf(window)) != FALSE; }

std::uint32_t GetLastActivePopup(std::uint32_t window) { return handleOf(::GetLastActivePopup(windowOf(window))); }

std::int32_t ShellExecuteA(std::uint32_t owner, const char* verb, const char* file, const char* parameters,
                           const char* directory, std::int32_t showState) {
    // Only a number by the name of an instance handle.
    const HINSTANCE result = ::ShellExecuteA(windowOf(owner), verb, file, parameters, directory, showState);
    return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(result));
}

std::int32_t GetLocaleInfoA(std::uint32_t locale, std::uint32_t type, char* buffer, std::int32_t size) {
    return ::GetLocaleInfoA(locale, type, buffer, size);
}

std::uint16_t GetUserDefaultLangID() { return ::GetUserDefaultLangID(); }

bool IsDBCSLeadByte(std::uint8_t byte) { return ::IsDBCSLeadByte(byte) != FALSE; }
const char* CharNextA(const char* text) { return ::CharNextA(text); }
void CharUpperA(char* text) { ::CharUpperA(text); }
void CharLowerA(char* text) { ::CharLowerA(text); }

void CharToOemBuffA(const char* source, char* destination, std::uint32_t length) {
    ::CharToOemBuffA(source, destination, length);
}

void OemToCharBuffA(const char* source, char* destination, std::uint32_t length) {
    ::OemToCharBuffA(source, destination, length);
}

}  // namespace platform

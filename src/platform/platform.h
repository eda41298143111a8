#pragma once

#include <cstdint>

// All that the library asks of its operating system, under the names the operating system gives it. posix/ is our own
// small layer with a PC that can be set up (posix/pc.h); windows/ forwards. Texts are 8-bit, in the PC's ANSI code
// page. Nothing here fails by throwing.
namespace platform {

// --- Modules and resources ---------------------------------------------------------------------------------------

// Address of a function that `module` exports under the undecorated `name`, or null. `module` is what the emulator's
// LoadModule gave; it is an address on every platform, so it has the width of one.
void* GetProcAddress(void* module, const char* name);

// Copies string resource `id` of `module` into `buffer` (`size` bytes, always terminated when size > 0). Returns the
// number of characters copied, 0 when there is no such resource.
std::int32_t LoadStringA(void* module, std::uint32_t id, char* buffer, std::int32_t size);

std::uint32_t GetCurrentProcessId();

// --- Memory shared with a provider -------------------------------------------------------------------------------

// A block of global memory or null; GlobalLock gives its address. Whoever allocated a block unlocks and frees it.
void* GlobalAlloc(std::uint32_t flags, std::uint32_t size);
void* GlobalLock(void* handle);
void GlobalUnlock(void* handle);
void GlobalFree(void* handle);

// --- Time --------------------------------------------------------------------------------------------------------

// Milliseconds since some fixed moment; wraps around after 2^32.
std::uint32_t GetTickCount();

// Lets other programs run for about so many milliseconds.
void Sleep(std::uint32_t milliseconds);

// --- Windows and shell -------------------------------------------------------------------------------------------

bool IsWindow(std::uint32_t window);
std::uint32_t GetLastActivePopup(std::uint32_t window);

// Result of 32 and above: started; below: the shell's error number. Null and empty texts are allowed for `parameters`
// and `directory`.
std::int32_t ShellExecuteA(std::uint32_t owner, const char* verb, const char* file, const char* parameters,
                           const char* directory, std::int32_t showState);

// --- Locale and text ---------------------------------------------------------------------------------------------

inline constexpr std::uint32_t LocaleUserDefault = 0x0400;
inline constexpr std::uint32_t LocaleListSeparator = 0x000C;     // LOCALE_SLIST
inline constexpr std::uint32_t LocaleDecimalSeparator = 0x000E;  // LOCALE_SDECIMAL

// Fills `buffer` with the terminated value; returns the bytes written with the terminator, 0 on failure.
std::int32_t GetLocaleInfoA(std::uint32_t locale, std::uint32_t type, char* buffer, std::int32_t size);

// Primary language in the low 10 bits, sub-language above.
std::uint16_t GetUserDefaultLangID();

bool IsDBCSLeadByte(std::uint8_t byte);
const char* CharNextA(const char* text);  // the character behind, or `text` itself at the terminator
void CharUpperA(char* text);              // in place
void CharLowerA(char* text);              // in place

// Both convert `length` bytes; source and destination may be the same.
void CharToOemBuffA(const char* source, char* destination, std::uint32_t length);
void OemToCharBuffA(const char* source, char* destination, std::uint32_t length);

}  // namespace platform

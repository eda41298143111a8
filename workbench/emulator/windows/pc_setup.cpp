#include <windows.h>

#include "Z7XFRPCS/types.h"
#include "emulator/code_pages.h"
#include "emulator/faults.h"
#include "emulator/platform_side.h"
#include "emulator/user_interface.h"
#include "emulator/windows/library_imports.h"
#include "platform/platform.h"

// The PC is the one that the program runs on: its code pages and its language are the machine's. What it has of
// windows, shell, memory and separators is played, towards the transfer library and the program alone: an emulator
// without windows of its own has none to show, and a user's settings are not changed for a transfer.

namespace emulator {
namespace {

BOOL WINAPI isWindow(HWND window) { return window != nullptr; }

HWND WINAPI lastActivePopup(HWND window) { return window; }

HINSTANCE WINAPI shellExecute(HWND owner, const char* verb, const char* file, const char* parameters,
                              const char* directory, INT showState) {
    const std::int32_t result = askShell(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(owner)), verb,
                                         file ? file : "", parameters ? parameters : "", directory, showState);
    return reinterpret_cast<HINSTANCE>(static_cast<std::intptr_t>(result));
}

HGLOBAL WINAPI globalAlloc(UINT flags, SIZE_T size) {
    return faults().refuseGlobalMemory ? nullptr : GlobalAlloc(flags, size);
}

std::uint32_t (*playedClock)() = nullptr;

DWORD WINAPI tickCount() { return playedClock ? playedClock() : GetTickCount(); }

INT WINAPI localeInfo(LCID locale, LCTYPE type, char* buffer, INT size) {
    const PcSetup& pc = pcSetup();
    const char separator = type == platform::LocaleListSeparator      ? pc.listSeparator
                           : type == platform::LocaleDecimalSeparator ? pc.decimalSeparator
                                                                      : '\0';
    if (!separator || size < 2) return GetLocaleInfoA(locale, type, buffer, size);
    buffer[0] = separator;
    buffer[1] = 0;
    return 2;
}

template <class Function>
void redirect(const char* name, Function* replacement) {
    redirectImport(name, reinterpret_cast<void*>(replacement));
}

char localeCharacter(std::uint32_t type) {
    char text[8] = {};
    GetLocaleInfoA(LOCALE_USER_DEFAULT, type, text, sizeof text);
    return text[0];
}

bool hasSamePages(const PcSetup& left, const PcSetup& right) {
    return left.ansiCodePage == right.ansiCodePage && left.oemCodePage == right.oemCodePage &&
           left.languageId == right.languageId;
}

}  // namespace

void connectDesktop() {
    redirect("IsWindow", &isWindow);
    redirect("GetLastActivePopup", &lastActivePopup);
    redirect("ShellExecuteA", &shellExecute);
    redirect("GlobalAlloc", &globalAlloc);
    redirect("GetLocaleInfoA", &localeInfo);
    redirect("GetTickCount", &tickCount);
}

void setTickCount(std::uint32_t (*clock)()) { playedClock = clock; }

PcSetup usualPc() {
    PcSetup setup;
    setup.ansiCodePage = GetACP();
    setup.oemCodePage = GetOEMCP();
    setup.languageId = GetUserDefaultLangID();
    setup.decimalSeparator = localeCharacter(platform::LocaleDecimalSeparator);
    setup.listSeparator = localeCharacter(platform::LocaleListSeparator);
    return setup;
}

bool pcIsPlayed() { return false; }

bool setUpPc(const PcSetup& setup) {
    if (!codePage(static_cast<std::int32_t>(setup.ansiCodePage)) || !hasSamePages(setup, usualPc())) return false;
    rememberPcSetup(setup);
    return true;
}

void resetPc() {
    setTickCount(nullptr);
    connectDesktop();
    rememberPcSetup(usualPc());
}

}  // namespace emulator

#include "platform/platform.h"

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "platform/posix/module.h"
#include "platform/posix/pc.h"

namespace platform {
namespace {

// A handle is no address of its memory, as on the real system: code that skips GlobalLock is found out here.
struct GlobalBlock {
    void* memory;
};

std::uint8_t byteAt(const char* text) { return static_cast<std::uint8_t>(*text); }

void mapText(char* text, const std::array<std::uint8_t, 256>& table) {
    while (*text != 0) {
        if (IsDBCSLeadByte(byteAt(text)) && text[1] != 0) {
            text += 2;
            continue;
        }
        *text = static_cast<char>(table[byteAt(text)]);
        ++text;
    }
}

void mapBuffer(const char* source, char* destination, std::uint32_t length,
               const std::array<std::uint8_t, 256>& table) {
    for (std::uint32_t i = 0; i < length; ++i) {
        if (IsDBCSLeadByte(byteAt(source + i)) && i + 1 < length) {
            destination[i] = source[i];
            ++i;
            destination[i] = source[i];
        } else {
            destination[i] = static_cast<char>(table[byteAt(source + i)]);
        }
    }
}

// dlsym also searches what the module depends on; the real call does not.
bool standsIn(void* module, const void* address) {
    link_map* map = nullptr;
    Dl_info info;
    if (dlinfo(module, RTLD_DI_LINKMAP, &map) != 0 || dladdr(address, &info) == 0) return false;
    Dl_info own;
    return dladdr(map->l_ld, &own) != 0 && own.dli_fbase == info.dli_fbase;
}

}  // namespace

void* GetProcAddress(void* module, const char* name) {
    if (!module || !name) return nullptr;
    void* address = dlsym(module, name);
    return address && standsIn(module, address) ? address : nullptr;
}

std::int32_t LoadStringA(void* module, std::uint32_t id, char* buffer, std::int32_t size) {
    const auto& resources = *static_cast<const PosixModule*>(module);
    const PosixModule::Row* const end = resources.rows + resources.count;
    const PosixModule::Row* const row =
        std::find_if(resources.rows, end, [id](const PosixModule::Row& each) { return each.id == id; });
    const char* const text = row == end ? "" : row->text;
    std::snprintf(buffer, static_cast<std::size_t>(size), "%s", text);
    return static_cast<std::int32_t>(std::strlen(buffer));
}

std::uint32_t GetCurrentProcessId() { return static_cast<std::uint32_t>(getpid()); }

// As if zeros were asked for.
void* GlobalAlloc(std::uint32_t, std::uint32_t size) {
    if (pcDesktop().refuseGlobalAlloc && pcDesktop().refuseGlobalAlloc()) return nullptr;
    auto* block = static_cast<GlobalBlock*>(std::malloc(sizeof(GlobalBlock)));
    if (!block) return nullptr;
    block->memory = std::calloc(1, size);
    if (block->memory) return block;
    std::free(block);
    return nullptr;
}

void* GlobalLock(void* handle) { return handle ? static_cast<GlobalBlock*>(handle)->memory : nullptr; }

void GlobalUnlock(void*) {}

void GlobalFree(void* handle) {
    if (!handle) return;
    std::free(static_cast<GlobalBlock*>(handle)->memory);
    std::free(handle);
}

std::uint32_t GetTickCount() {
    if (pcDesktop().tickCount) return pcDesktop().tickCount();
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}

void Sleep(std::uint32_t milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

bool IsWindow(std::uint32_t window) { return pcDesktop().isWindow ? pcDesktop().isWindow(window) : window != 0; }

std::uint32_t GetLastActivePopup(std::uint32_t window) {
    return pcDesktop().lastActivePopup ? pcDesktop().lastActivePopup(window) : window;
}

std::int32_t ShellExecuteA(std::uint32_t owner, const char* verb, const char* file, const char* parameters,
                           const char* directory, std::int32_t showState) {
    constexpr std::int32_t FileNotFound = 2;
    if (!pcDesktop().shellExecute) return FileNotFound;
    return pcDesktop().shellExecute(owner, verb, file ? file : "", parameters ? parameters : "", directory, showState);
}

std::int32_t GetLocaleInfoA(std::uint32_t, std::uint32_t type, char* buffer, std::int32_t size) {
    if (type != LocaleListSeparator && type != LocaleDecimalSeparator) return 0;
    const auto& value = type == LocaleListSeparator ? pcLocale().listSeparator : pcLocale().decimalSeparator;
    const int length = std::snprintf(buffer, static_cast<std::size_t>(size), "%s", value.data());
    return length < size ? length + 1 : 0;
}

std::uint16_t GetUserDefaultLangID() { return pcLocale().languageId; }

bool IsDBCSLeadByte(std::uint8_t byte) { return pcLocale().leadBytes[byte]; }

const char* CharNextA(const char* text) {
    if (*text == 0) return text;
    return IsDBCSLeadByte(byteAt(text)) && text[1] != 0 ? text + 2 : text + 1;
}

void CharUpperA(char* text) { mapText(text, pcLocale().upper); }
void CharLowerA(char* text) { mapText(text, pcLocale().lower); }

void CharToOemBuffA(const char* source, char* destination, std::uint32_t length) {
    mapBuffer(source, destination, length, pcLocale().ansiToOem);
}

void OemToCharBuffA(const char* source, char* destination, std::uint32_t length) {
    mapBuffer(source, destination, length, pcLocale().oemToAnsi);
}

}  // namespace platform

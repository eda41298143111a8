#include "platform/platform.h"

#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "platform/posix/module.h"
#include "platform/posix/pc.h"

namespace platform {
namespace {

constexpr std::uint32_t ZeroInitialised = 0x0040;

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
    if (!buffer || size <= 0) return 0;
    buffer[0] = 0;
    if (!module) return 0;
    const auto& resources = *static_cast<const PosixModule*>(module);
    for (std::uint32_t i = 0; i < resources.count; ++i) {
        const PosixModule::Row& row = resources.rows[i];
        if (row.id != id) continue;
        const std::size_t length = strnlen(row.text, static_cast<std::size_t>(size) - 1);
        std::memcpy(buffer, row.text, length);
        buffer[length] = 0;
        return static_cast<std::int32_t>(length);
    }
    return 0;
}

std::uint32_t GetCurrentProcessId() { return static_cast<std::uint32_t>(getpid()); }

void* GlobalAlloc(std::uint32_t flags, std::uint32_t size) {
    if (pcDesktop().refuseGlobalAlloc && pcDesktop().refuseGlobalAlloc()) return nullptr;
    auto* block = static_cast<GlobalBlock*>(std::malloc(sizeof(GlobalBlock)));
    if (!block) return nullptr;
    block->memory = flags & ZeroInitialised ? std::calloc(size ? size : 1, 1) : std::malloc(size ? size : 1);
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
    const auto needed = static_cast<std::int32_t>(strnlen(value.data(), value.size() - 1)) + 1;
    // Size 0 asks how much room is needed.
    if (size == 0) return needed;
    if (!buffer || size < needed) return 0;
    std::memcpy(buffer, value.data(), static_cast<std::size_t>(needed) - 1);
    buffer[needed - 1] = 0;
    return needed;
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

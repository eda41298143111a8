#pragma once

#include <array>
#include <cstdint>

// The PC that the posix layer plays. One state per process, shared by the library, the emulator and the program around
// them, because this layer is a shared library of its own, as kernel32 and user32 are. The layer knows no code pages:
// whoever sets up the PC fills the tables. A process that sets nothing has an English PC with an ASCII code page.
namespace platform {

struct PcLocale {
    std::uint16_t languageId = 0x0409;
    std::array<char, 5> decimalSeparator{'.', 0, 0, 0, 0};
    std::array<char, 5> listSeparator{',', 0, 0, 0, 0};
    // Indexed by byte. A byte marked in leadBytes starts a two-byte character, which no table below changes.
    std::array<bool, 256> leadBytes{};
    std::array<std::uint8_t, 256> upper{};
    std::array<std::uint8_t, 256> lower{};
    std::array<std::uint8_t, 256> ansiToOem{};
    std::array<std::uint8_t, 256> oemToAnsi{};

    // ASCII case tables, identity conversions, no lead bytes.
    static PcLocale ascii();
};

// What the rest of the desktop would answer. Null entries give the defaults named beside them.
struct PcDesktop {
    bool (*isWindow)(std::uint32_t window) = nullptr;                  // any non-zero handle is a window
    std::uint32_t (*lastActivePopup)(std::uint32_t window) = nullptr;  // the window itself
    // 2: file not found. File and parameters are never null.
    std::int32_t (*shellExecute)(std::uint32_t owner, const char* verb, const char* file, const char* parameters,
                                 const char* directory, std::int32_t showState) = nullptr;
    std::uint32_t (*tickCount)() = nullptr;  // the steady clock
    bool (*refuseGlobalAlloc)() = nullptr;   // never refused
};

void setPcLocale(const PcLocale& locale);
const PcLocale& pcLocale();
void setPcDesktop(const PcDesktop& desktop);
const PcDesktop& pcDesktop();

}  // namespace platform

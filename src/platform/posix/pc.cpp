#include "platform/posix/pc.h"

namespace platform {
namespace {

PcLocale currentLocale = PcLocale::ascii();
PcDesktop currentDesktop;

}  // namespace

PcLocale PcLocale::ascii() {
    PcLocale locale;
    for (unsigned byte = 0; byte < 256; ++byte) {
        const auto same = static_cast<std::uint8_t>(byte);
        const bool small = byte >= 'a' && byte <= 'z';
        const bool capital = byte >= 'A' && byte <= 'Z';
        locale.upper[byte] = small ? static_cast<std::uint8_t>(byte - 32) : same;
        locale.lower[byte] = capital ? static_cast<std::uint8_t>(byte + 32) : same;
        locale.ansiToOem[byte] = same;
        locale.oemToAnsi[byte] = same;
    }
    return locale;
}

void setPcLocale(const PcLocale& locale) { currentLocale = locale; }
const PcLocale& pcLocale() { return currentLocale; }
void setPcDesktop(const PcDesktop& desktop) { currentDesktop = desktop; }
const PcDesktop& pcDesktop() { return currentDesktop; }

}  // namespace platform

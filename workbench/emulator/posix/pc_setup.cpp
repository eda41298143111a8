#include <map>
#include <utility>

#include "emulator/code_pages.h"
#include "emulator/faults.h"
#include "emulator/platform_side.h"
#include "emulator/user_interface.h"
#include "platform/posix/pc.h"

namespace emulator {
namespace {

bool refuseGlobalAlloc() { return faults().refuseGlobalMemory; }

// The case and OEM tables of a page take a walk over it, so they are kept; other data makes others.
const codepages::PcTables& keptTables(const codepages::CodePage& ansi, const codepages::CodePage& oem) {
    static std::map<std::pair<std::uint32_t, std::uint32_t>, codepages::PcTables> made;
    static std::uint64_t madeFrom = 0;
    if (std::exchange(madeFrom, codeDataNumber()) != codeDataNumber()) made.clear();
    const auto [entry, isNew] = made.try_emplace({ansi.number(), oem.number()});
    if (isNew) entry->second = codepages::pcTables(ansi, oem);
    return entry->second;
}

}  // namespace

void connectDesktop() {
    platform::PcDesktop desktop = platform::pcDesktop();
    desktop.shellExecute = &askShell;
    desktop.refuseGlobalAlloc = &refuseGlobalAlloc;
    platform::setPcDesktop(desktop);
}

bool setUpPc(const PcSetup& setup) {
    const codepages::CodePage* ansi = codePage(static_cast<std::int32_t>(setup.ansiCodePage));
    const codepages::CodePage* oem = codePage(static_cast<std::int32_t>(setup.oemCodePage));
    if (!ansi || !oem || ansi->isHost() || oem->isHost()) return false;
    const codepages::PcTables& tables = keptTables(*ansi, *oem);
    platform::PcLocale locale;
    locale.languageId = setup.languageId;
    locale.decimalSeparator[0] = setup.decimalSeparator;
    locale.listSeparator[0] = setup.listSeparator;
    locale.leadBytes = tables.leadBytes;
    locale.upper = tables.upper;
    locale.lower = tables.lower;
    locale.ansiToOem = tables.ansiToOem;
    locale.oemToAnsi = tables.oemToAnsi;
    platform::setPcLocale(locale);
    rememberPcSetup(setup);
    return true;
}

void setTickCount(std::uint32_t (*clock)()) {
    platform::PcDesktop desktop = platform::pcDesktop();
    desktop.tickCount = clock;
    platform::setPcDesktop(desktop);
}

PcSetup usualPc() { return {}; }

bool pcIsPlayed() { return true; }

// Falls back to ASCII when there is no code page data.
void resetPc() {
    platform::setPcDesktop({});
    connectDesktop();
    if (setUpPc(usualPc())) return;
    rememberPcSetup(usualPc());
    platform::setPcLocale(platform::PcLocale::ascii());
}

}  // namespace emulator

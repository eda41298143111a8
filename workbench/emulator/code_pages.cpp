#include "emulator/code_pages.h"

#include <optional>
#include <string>

#include "emulator/platform_side.h"
#include "environment/environment.h"

namespace emulator {
namespace {

std::string wantedFile;
std::optional<bool> loaded;
PcSetup setup;
std::uint64_t setupNumber = 1;
std::uint64_t dataNumber = 1;

std::string dataFile() {
    if (!wantedFile.empty()) return wantedFile;
    const std::string named = environment::variable("Z7X_CODE_PAGES");
    return named.empty() ? ownFolder() + "/codepages.dat" : named;
}

bool haveData() {
    if (!loaded) {
        std::string reason;
        loaded = codepages::load(dataFile(), &reason);
    }
    return *loaded;
}

}  // namespace

void setCodePageDataFile(const std::string& path) {
    wantedFile = path;
    loaded.reset();
    ++setupNumber;
    ++dataNumber;
}

const codepages::CodePage* codePage(std::int32_t number) {
    if (number <= 0 || !haveData()) return nullptr;
    return codepages::find(static_cast<std::uint32_t>(number));
}

const codepages::CodePage* hostCodePage(std::int32_t number) { return codePage(number == 43 ? 37 : number); }

const PcSetup& pcSetup() { return setup; }

void rememberPcSetup(const PcSetup& newSetup) {
    setup = newSetup;
    ++setupNumber;
}

const codepages::CodePage* ansiPage() { return codePage(static_cast<std::int32_t>(setup.ansiCodePage)); }

std::uint64_t pcSetupNumber() { return setupNumber; }
std::uint64_t codeDataNumber() { return dataNumber; }

}  // namespace emulator

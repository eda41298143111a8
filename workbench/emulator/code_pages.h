#pragma once

#include <cstdint>

#include "codepages/codepages.h"
#include "emulator/emulator.h"

// The code page data and the PC's pages.
namespace emulator {

// Loads the data when that has not happened yet. Null when the page, or all data, is missing.
const codepages::CodePage* codePage(std::int32_t number);
// The same for a host page: 43 is played with the letters of page 37.
const codepages::CodePage* hostCodePage(std::int32_t number);

const PcSetup& pcSetup();
void rememberPcSetup(const PcSetup& setup);
const codepages::CodePage* ansiPage();

// Another number whenever the PC's pages or the data may have changed: what was made from them is to be made again.
std::uint64_t pcSetupNumber();
// The same for the data alone.
std::uint64_t codeDataNumber();

}  // namespace emulator

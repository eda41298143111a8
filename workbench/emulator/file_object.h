#pragma once

#include <cstdint>

namespace emulator {

std::uint32_t liveFileObjects();
void resetFileObjects();

}  // namespace emulator

#pragma once

#include <cstdint>

namespace emulator {

std::uint32_t lockedLists();
void resetStore();

}  // namespace emulator

#pragma once

#include <cstdint>

namespace emulator {

std::uint32_t openTextDisplays();
void resetDisplays();

}  // namespace emulator

#pragma once

#include <cstdint>

namespace emulator {

std::uint32_t openProgressDialogs();
void resetDialogs();

}  // namespace emulator

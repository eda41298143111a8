#pragma once

#include <cstdint>

#include "emulator/emulator.h"

namespace emulator {

// With messages in general disabled, none is enabled.
bool messageEnabled(std::uint32_t id);

// A box of the emulator's own over the session's window, still without flags and text.
MessageBox readyTextBox(ZhstSession session, MessageSource source);

void resetMessages();

}  // namespace emulator

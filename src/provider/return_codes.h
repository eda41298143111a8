#pragma once

#include <cstdint>

// What the return codes of a provider stand for in the emulator's message catalogue.
namespace provider {

// Codes of the emulator's own providers; their texts are found by the code itself. All others are the transfer
// function's.
constexpr bool isProviderCode(std::uint16_t returnCode) { return returnCode < 0x0103; }

// Index of the error text of a transfer function's code in the transfer table; 0 when the code has none.
std::uint32_t errorTextIndex(std::uint16_t returnCode);

// Help topic of a code; that of return codes in general when it has none of its own.
std::uint32_t helpIdOf(std::uint16_t returnCode);

}  // namespace provider

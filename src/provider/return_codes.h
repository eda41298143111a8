#pragma once

#include <cstdint>

// What the return codes of a provider stand for in the emulator's message catalogue.
namespace provider {

// Index of the error text of a code in message table 7; 0 when the code has none.
std::uint32_t errorTextIndex(std::uint16_t returnCode);

// Help id of a code; 4254 when it has none of its own.
std::uint32_t helpIdOf(std::uint16_t returnCode);

// Codes below this one are those of the emulator's own providers; their texts are found by the code itself.
inline constexpr std::uint16_t FirstTransferCode = 0x0103;

}  // namespace provider

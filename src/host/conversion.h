#pragma once

#include "host/types.h"

// Conversion services of the emulator.
namespace host {
inline constexpr std::uint32_t PcToHost = 0;
inline constexpr std::uint32_t HostToPc = 1;
}  // namespace host

extern "C" {
host::ConverterHandle ZHST_CALL zhstGetEmulatorConverter(host::SessionHandle session);
host::TextServicesHandle ZHST_CALL zhstGetTextServices(host::SessionHandle session);
// Converts `length` bytes in place between the session's host code page and the PC's; 0 for success.
std::uint32_t ZHST_CALL zhstConvertHostText(host::ConverterHandle converter, std::uint32_t direction,
                                            std::uint32_t length, void* buffer);
}

namespace host {
inline constexpr auto& GetEmulatorConverter = zhstGetEmulatorConverter;
inline constexpr auto& GetTextServices = zhstGetTextServices;
inline constexpr auto& ConvertHostText = zhstConvertHostText;
}  // namespace host

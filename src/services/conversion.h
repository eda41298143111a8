#pragma once

#include "Z7XFRPCS/conversion.h"
#include "services/handles.h"

// Text between the code pages of the host and the PC.
namespace services {

inline constexpr std::uint32_t PcToHost = ZhstPcToHost;
inline constexpr std::uint32_t HostToPc = ZhstHostToPc;

inline constexpr auto& GetEmulatorConverter = zhstGetEmulatorConverter;
inline constexpr auto& GetTextServices = zhstGetTextServices;
inline constexpr auto& ConvertHostText = zhstConvertHostText;

}  // namespace services

#pragma once

#include "Z7XFRPCS/text_display.h"
#include "services/handles.h"

// A paged table window.
namespace services {

using TextDisplayParameters = ZhstTextDisplayParameters;

inline constexpr std::uint32_t AlignLeft = ZhstAlignLeft;
inline constexpr std::uint32_t AlignRight = ZhstAlignRight;

inline constexpr auto& TextDisplayCreate = zhstTextDisplayCreate;
inline constexpr auto& TextDisplayDestroy = zhstTextDisplayDestroy;
inline constexpr auto& TextDisplayBegin = zhstTextDisplayBegin;
inline constexpr auto& TextDisplayAddColumn = zhstTextDisplayAddColumn;
inline constexpr auto& TextDisplayAddRow = zhstTextDisplayAddRow;
inline constexpr auto& TextDisplaySetCell = zhstTextDisplaySetCell;
inline constexpr auto& TextDisplaySetStatus = zhstTextDisplaySetStatus;
inline constexpr auto& TextDisplayEnd = zhstTextDisplayEnd;

}  // namespace services

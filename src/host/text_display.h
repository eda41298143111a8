#pragma once

#include "host/types.h"

// Text display services: a paged table window.
namespace host {

// Called with the context of the parameter record; always returns 1.
using DisplayNotification = std::uint32_t(ZHST_CALL*)(void* context);

struct TextDisplayParameters {
    WindowHandle owner;
    SessionHandle session;
    const char* title;
    DisplayNotification more;  // the user asks for the next page
    std::uint32_t reserved;
    DisplayNotification close;  // the user closes the window
    void* context;
};
static_assert(sizeof(void*) != 4 || sizeof(TextDisplayParameters) == 28);
static_assert(sizeof(void*) != 4 ||
              (offsetof(TextDisplayParameters, title) == 8 && offsetof(TextDisplayParameters, more) == 12 &&
               offsetof(TextDisplayParameters, close) == 20 && offsetof(TextDisplayParameters, context) == 24));

inline constexpr std::uint32_t AlignLeft = 0;
inline constexpr std::uint32_t AlignRight = 2;

}  // namespace host

extern "C" {
host::TextDisplayHandle ZHST_CALL zhstTextDisplayCreate(const host::TextDisplayParameters* parameters);
void ZHST_CALL zhstTextDisplayDestroy(host::TextDisplayHandle display);
// Non-zero when the table is prepared.
std::uint32_t ZHST_CALL zhstTextDisplayBegin(host::TextDisplayHandle display, std::int32_t rowsPerPage,
                                             std::uint32_t reserved);
void ZHST_CALL zhstTextDisplayAddColumn(host::TextDisplayHandle display, std::uint32_t index, const char* title,
                                        std::uint32_t width, std::uint32_t alignment);
host::TextRowHandle ZHST_CALL zhstTextDisplayAddRow(host::TextDisplayHandle display, std::uint32_t reserved);
void ZHST_CALL zhstTextDisplaySetCell(host::TextDisplayHandle display, const char* text, host::TextRowHandle row,
                                      std::uint32_t column);
void ZHST_CALL zhstTextDisplaySetStatus(host::TextDisplayHandle display, const char* text);
void ZHST_CALL zhstTextDisplayEnd(host::TextDisplayHandle display);
}

namespace host {
inline constexpr auto& TextDisplayCreate = zhstTextDisplayCreate;
inline constexpr auto& TextDisplayDestroy = zhstTextDisplayDestroy;
inline constexpr auto& TextDisplayBegin = zhstTextDisplayBegin;
inline constexpr auto& TextDisplayAddColumn = zhstTextDisplayAddColumn;
inline constexpr auto& TextDisplayAddRow = zhstTextDisplayAddRow;
inline constexpr auto& TextDisplaySetCell = zhstTextDisplaySetCell;
inline constexpr auto& TextDisplaySetStatus = zhstTextDisplaySetStatus;
inline constexpr auto& TextDisplayEnd = zhstTextDisplayEnd;
}  // namespace host

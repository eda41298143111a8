#pragma once

#include "host/types.h"

// Transfer dialog services: the progress dialog and the connection dialog.
namespace host {

// Direction of a progress dialog and of the setting TransferDirection.
inline constexpr std::uint32_t ToHost = 0;
inline constexpr std::uint32_t FromHost = 1;

// Unit of a progress total.
inline constexpr std::uint32_t Records = 1;
inline constexpr std::uint32_t Bytes = 2;

// Commands of the progress dialog, as sent. The file type commands 29 to 35 stand in the table of PC file types.
enum class ProgressCommand : std::uint32_t {
    DataBegins = 0,
    Ended = 1,
    SimulationCancelled = 2,
    AllDataTransferred = 4,
    ProcessMessages = 16,
    Starting = 23,
    CountingRecords = 24,
    PreparingConversion = 25,
    OptionsRequest = 26,
    TransferRequest = 27,
    ReadingFields = 28,
};

}  // namespace host

extern "C" {
// mode: 0 without a display, 1 or 2 with one. Null (0) when it cannot be created.
host::ProgressDialogHandle ZHST_CALL zhstProgressDialogCreate(host::SessionHandle session, std::uint32_t direction,
                                                              std::uint32_t mode, std::uint32_t reserved);
void ZHST_CALL zhstProgressDialogCommand(host::ProgressDialogHandle dialog, std::uint32_t command);
void ZHST_CALL zhstProgressDialogDestroy(host::ProgressDialogHandle dialog);
void ZHST_CALL zhstProgressDialogSetPcName(host::ProgressDialogHandle dialog, const char* text);
void ZHST_CALL zhstProgressDialogSetHostName(host::ProgressDialogHandle dialog, const char* text);
void ZHST_CALL zhstProgressDialogSetTotal(host::ProgressDialogHandle dialog, std::uint32_t total, std::uint32_t unit);
void ZHST_CALL zhstProgressDialogHide(host::ProgressDialogHandle dialog);
void ZHST_CALL zhstProgressDialogShow(host::ProgressDialogHandle dialog);
// 0 when the user cancels. `module` is the library's own.
std::uint32_t ZHST_CALL zhstConnectionDialog(host::SessionHandle session, host::ModuleHandle module,
                                             host::WindowHandle owner);
}

namespace host {
inline constexpr auto& ProgressDialogCreate = zhstProgressDialogCreate;
inline void ProgressDialogCommand(ProgressDialogHandle dialog, ProgressCommand command) {
    zhstProgressDialogCommand(dialog, static_cast<std::uint32_t>(command));
}
inline constexpr auto& ProgressDialogDestroy = zhstProgressDialogDestroy;
inline constexpr auto& ProgressDialogSetPcName = zhstProgressDialogSetPcName;
inline constexpr auto& ProgressDialogSetHostName = zhstProgressDialogSetHostName;
inline constexpr auto& ProgressDialogSetTotal = zhstProgressDialogSetTotal;
inline constexpr auto& ProgressDialogHide = zhstProgressDialogHide;
inline constexpr auto& ProgressDialogShow = zhstProgressDialogShow;
inline constexpr auto& ConnectionDialog = zhstConnectionDialog;
}  // namespace host

#pragma once

#include "Z7XFRPCS/dialogs.h"
#include "services/handles.h"

// The progress dialog and the connection dialog.
namespace services {

// Unit of a progress total.
inline constexpr std::uint32_t Records = ZhstRecords;
inline constexpr std::uint32_t Bytes = ZhstBytes;

enum class ProgressCommand : std::uint32_t {
    DataBegins = ZhstDataBegins,
    Ended = ZhstEnded,
    SimulationCancelled = ZhstSimulationCancelled,
    AllDataTransferred = ZhstAllDataTransferred,
    ProcessMessages = ZhstProcessMessages,
    Starting = ZhstStarting,
    CountingRecords = ZhstCountingRecords,
    PreparingConversion = ZhstPreparingConversion,
    OptionsRequest = ZhstOptionsRequest,
    TransferRequest = ZhstTransferRequest,
    ReadingFields = ZhstReadingFields,
};

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

}  // namespace services

#include "emulator/dialogs.h"

#include <map>
#include <string>

#include "Z7XFRPCS/dialogs.h"
#include "emulator/faults.h"
#include "emulator/journal.h"
#include "emulator/sessions.h"
#include "emulator/user_interface.h"

namespace emulator {
namespace {

struct ProgressDialog {
    std::string pcName, hostName;
};

std::map<ZhstProgressDialog, ProgressDialog> dialogs;
ZhstProgressDialog lastHandle = 0;

ProgressDialog* find(ZhstProgressDialog handle) {
    const auto found = dialogs.find(handle);
    return found == dialogs.end() ? nullptr : &found->second;
}

ZhstProgressDialog create(std::uint32_t direction, std::uint32_t mode) {
    if (faults().refuseProgressDialog) return 0;
    dialogs.emplace(++lastHandle, ProgressDialog{});
    userInterface().progressCreated(direction, mode);
    return lastHandle;
}

void setHidden(const char* name, ZhstProgressDialog dialog, bool hidden) {
    const journalled::Call call(name, dialog);
    if (find(dialog)) userInterface().progressHidden(hidden);
}

}  // namespace

std::uint32_t openProgressDialogs() { return static_cast<std::uint32_t>(dialogs.size()); }

void resetDialogs() {
    dialogs.clear();
    lastHandle = 0;
}

}  // namespace emulator

using namespace emulator;
using journalled::Call;

ZhstProgressDialog ZHST_CALL zhstProgressDialogCreate(ZhstSession session, std::uint32_t direction, std::uint32_t mode,
                                                      std::uint32_t reserved) {
    const Call call("ProgressDialogCreate", session, direction, mode, reserved);
    return call.result(create(direction, mode));
}

void ZHST_CALL zhstProgressDialogCommand(ZhstProgressDialog dialog, std::uint32_t command) {
    const Call call("ProgressDialogCommand", dialog, command);
    if (!find(dialog)) return;
    userInterface().progressCommand(command);
    if (command == ZhstProcessMessages) userInterface().pump();
}

void ZHST_CALL zhstProgressDialogDestroy(ZhstProgressDialog dialog) {
    const Call call("ProgressDialogDestroy", dialog);
    if (dialogs.erase(dialog) > 0) userInterface().progressDestroyed();
}

void ZHST_CALL zhstProgressDialogSetPcName(ZhstProgressDialog dialog, const char* text) {
    const Call call("ProgressDialogSetPcName", dialog, text);
    ProgressDialog* found = find(dialog);
    if (!found) return;
    found->pcName = text ? text : "";
    userInterface().progressNames(found->pcName, found->hostName);
}

void ZHST_CALL zhstProgressDialogSetHostName(ZhstProgressDialog dialog, const char* text) {
    const Call call("ProgressDialogSetHostName", dialog, text);
    ProgressDialog* found = find(dialog);
    if (!found) return;
    found->hostName = text ? text : "";
    userInterface().progressNames(found->pcName, found->hostName);
}

void ZHST_CALL zhstProgressDialogSetTotal(ZhstProgressDialog dialog, std::uint32_t total, std::uint32_t unit) {
    const Call call("ProgressDialogSetTotal", dialog, total, unit);
    if (find(dialog)) userInterface().progressTotal(total, unit);
}

void ZHST_CALL zhstProgressDialogHide(ZhstProgressDialog dialog) { setHidden("ProgressDialogHide", dialog, true); }

void ZHST_CALL zhstProgressDialogShow(ZhstProgressDialog dialog) { setHidden("ProgressDialogShow", dialog, false); }

std::uint32_t ZHST_CALL zhstConnectionDialog(ZhstSession session, ZhstModule module, ZhstWindow owner) {
    const Call call("ConnectionDialog", session, journalled::Address{module}, owner);
    return call.result(userInterface().connectionDialog() ? 1u : 0u);
}

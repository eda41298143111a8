#include "client/client_object.h"

#include "client/exports.h"
#include "host/setting_ids.h"
#include "host/setting_values.h"

namespace client {

host::Owned<provider::TransferFunctionSession> makeTransferFunctionSession(host::SessionHandle session) {
    return host::Owned<provider::TransferFunctionSession>::make(session, stateChangeProc, EHNTF_STF_Callback);
}

}  // namespace client

void ZXFRPCSCLIENT::pumpMessages() {
    if (progressDialog && showProgress)
        host::ProgressDialogCommand(progressDialog, host::ProgressCommand::ProcessMessages);
    else
        host::PumpMessages(appHandle, 1);
}

bool ZXFRPCSCLIENT::isDemonstration() const {
    return host::GetSetting(settings, host::setting::ConnectionType) == host::value::DemonstrationConnection;
}

bool ZXFRPCSCLIENT::tfStart() {
    if (!tfSession) tfSession = client::makeTransferFunctionSession(session);
    if (tfSession) return tfSession->tfStart();
    provider::showMessage(messageOwner(), provider::OutOfMemory);
    return false;
}

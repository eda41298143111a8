#include "client/client_object.h"

#include "Z7XFRPCS/exports.h"
#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"

namespace client {

services::Owned<provider::TransferFunctionSession> makeTransferFunctionSession(services::SessionHandle session) {
    return services::Owned<provider::TransferFunctionSession>::make(session, stateChangeProc, EHNTF_STF_Callback);
}

}  // namespace client

// A dialog on display processes the messages itself, those of its cancel button among them.
void ZXFRPCSCLIENT::pumpMessages() {
    if (progressDialog && showProgress)
        services::ProgressDialogCommand(progressDialog, services::ProgressCommand::ProcessMessages);
    else
        services::PumpMessages(appHandle, 1);
}

bool ZXFRPCSCLIENT::isDemonstration() const {
    return services::GetSetting(settings, zhst::setting::ConnectionType) == zhst::value::DemonstrationConnection;
}

// A client whose session found no memory when it was made tries again with each transfer and listing.
bool ZXFRPCSCLIENT::tfStart() {
    if (!tfSession) tfSession = client::makeTransferFunctionSession(session);
    if (tfSession) return tfSession->tfStart();
    messages::show(messageOwner(), zhst::message::OutOfMemory);
    return false;
}

messages::Owner ZXFRPCSCLIENT::popupOwner() const {
    return {session, settings, platform::GetLastActivePopup(mainWindow)};
}

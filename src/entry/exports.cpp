#include "Z7XFRPCS/exports.h"

#include "Z7XFRPCS/messages.h"
#include "client/client_lifecycle.h"
#include "entry/transfer_frame.h"
#include "request/catalog_browser.h"

extern "C" {

ZXFRPCSCLIENT* ZHST_CALL newZXFRPCSCLIENT(std::uint32_t session) { return client::createClient(session); }

void ZHST_CALL deleteZXFRPCSCLIENT(ZXFRPCSCLIENT* client) { client::destroyClient(client); }

ZXFRPCSCLIENT* ZHST_CALL getZXFRPCSCLIENT(std::uint32_t session) { return client::findClient(session); }

void ZHST_CALL EHNTF_STF_Callback() { provider::TransferFunctionSession::yieldToDialog(); }

void ZHST_CALL pcsTransferFile(ZXFRPCSCLIENT* client, const char* settingsFile, std::uint32_t direction,
                               std::uint32_t showProgress, std::uint32_t ownerWindow) {
    // The other way round than everywhere else: 0 is from the host, and whatever is not 0 goes to it.
    const auto way = direction == 0 ? services::Direction::FromHost : services::Direction::ToHost;
    if (client) entry::transferFile(*client, settingsFile, way, showProgress, ownerWindow);
}

std::uint32_t ZHST_CALL pcsGetFirstHostFilename(std::uint32_t session, const char* pattern, HostCatalogEntry* entry) {
    ZXFRPCSCLIENT* client = client::findClient(session);
    return client ? request::getFirstHostFilename(*client, pattern, entry) : std::uint32_t{CatalogFailure};
}

std::uint32_t ZHST_CALL pcsGetNextHostFilename(std::uint32_t session, HostCatalogEntry* entry) {
    ZXFRPCSCLIENT* client = client::findClient(session);
    return client ? request::getNextHostFilename(*client, entry) : std::uint32_t{CatalogFailure};
}

// What these states are is the emulator's affair; the client has no part in the answer.
std::uint32_t ZHST_CALL pcsAreXferCmdsEnabled(ZXFRPCSCLIENT*, std::uint32_t stateCode) {
    return stateCode == 74 || stateCode == 75 || stateCode == 168;
}

// The two notifications touch nothing of a client but the first word and the second.
std::uint32_t ZHST_CALL TextDisplayMoreNotification(void* context) {
    if (context) static_cast<std::uint32_t*>(context)[0] = 1;
    return 1;
}

std::uint32_t ZHST_CALL TextDisplayCloseNotification(void* context) {
    if (context) static_cast<std::uint32_t*>(context)[1] = 1;
    return 1;
}

void ZHST_CALL pcsCancelTransfer(ZXFRPCSCLIENT* client) {
    if (!client) return;
    client->cancelRequested = 1;
    // Asked so that the session notes the message; nothing is shown.
    services::IsMessageEnabled(client->settings, zhst::message::TransferCancelled);
}

std::uint32_t ZHST_CALL stateChangeProc(std::uint32_t session, std::uint32_t settingId, std::int32_t newValue,
                                        std::int32_t oldValue) {
    ZXFRPCSCLIENT* client = client::findClient(session);
    if (client && client->tfSession) client->tfSession->onSettingChanged(settingId, newValue, oldValue);
    return 1;
}

void ZHST_CALL runtimeSettingNotification(std::uint32_t session, std::uint32_t value) {
    ZXFRPCSCLIENT* client = client::findClient(session);
    if (client && client->tfSession) client->tfSession->setRuntimeSetting(value);
}

// Without its decoration on ELF, where an @ in the name of a symbol introduces a version.
void ZHST_CALL xferCleanup(std::uint32_t session) {
    ZXFRPCSCLIENT* client = client::findClient(session);
    if (client && client->tfSession) client->tfSession->tfStop();
}
}

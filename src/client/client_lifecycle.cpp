#include "client/client_lifecycle.h"

#include "client/exports.h"

namespace client {
namespace {

constexpr std::uint32_t CleanupSlot = 104;
constexpr std::uint32_t RequestCapacity = 4096;

ZXFRPCSCLIENT* currentClient = nullptr;
host::SessionHandle currentSession = 0;

// A second client for the session that is current already does not take its place.
void registerClient(ZXFRPCSCLIENT* client) {
    if (client == currentClient || client->session == currentSession) return;
    currentClient = client;
    currentSession = client->session;
}

host::Owned<text::TextBuffer> makeRequestText() {
    auto text = host::Owned<text::TextBuffer>::make(RequestCapacity);
    if (text && !text->hasBlock()) text.reset();
    return text;
}

}  // namespace

ZXFRPCSCLIENT* createClient(host::SessionHandle session) {
    auto owned = host::Owned<ZXFRPCSCLIENT>::make(session);
    if (!owned) return nullptr;
    ZXFRPCSCLIENT* client = owned.release();
    registerClient(client);
    client->settings = host::GetSessionSettings(session);
    client->appHandle = host::GetSessionApp(session);
    client->sessionServices = host::GetSessionServices(session);
    client->mainWindow = host::GetSessionWindow(client->settings);
    client->pathServices = static_cast<host::PathServices*>(host::GetSessionObject(session, host::PathServicesKind));
    client->tfSession = makeTransferFunctionSession(session);
    client->requestText = makeRequestText();
    client->workText = host::Owned<text::TextBuffer>::make();
    host::RegisterCleanup(session, CleanupSlot, xferCleanup);
    return client;
}

void destroyClient(ZXFRPCSCLIENT* client) {
    if (!client) return;
    client->tfSession.reset();
    client->requestText.reset();
    client->workText.reset();
    host::RegisterCleanup(client->session, CleanupSlot, nullptr);
    if (client == currentClient) {
        currentClient = nullptr;
        currentSession = 0;
    }
    host::Owned<ZXFRPCSCLIENT>::adopt(client).reset();
}

ZXFRPCSCLIENT* findClient(host::SessionHandle session) { return session == currentSession ? currentClient : nullptr; }

}  // namespace client

#include "client/client_lifecycle.h"

#include "Z7XFRPCS/exports.h"

namespace client {
namespace {

constexpr std::uint32_t RequestCapacity = 4096;

ZXFRPCSCLIENT* currentClient = nullptr;
services::SessionHandle currentSession = 0;

// A second client for the session that is current already does not take its place.
void registerClient(ZXFRPCSCLIENT* client) {
    if (client == currentClient || client->session == currentSession) return;
    currentClient = client;
    currentSession = client->session;
}

// A text without its block would take no statement and say nothing; where there is no text, its users report that.
services::Owned<text::TextBuffer> makeRequestText() {
    auto text = services::Owned<text::TextBuffer>::make(RequestCapacity);
    if (text && !text->hasBlock()) text.reset();
    return text;
}

}  // namespace

// Registered before it is complete: the watches that its session sets up may call back at once.
ZXFRPCSCLIENT* createClient(services::SessionHandle session) {
    auto owned = services::Owned<ZXFRPCSCLIENT>::make(session);
    if (!owned) return nullptr;
    ZXFRPCSCLIENT* client = owned.release();
    registerClient(client);
    client->settings = services::GetSessionSettings(session);
    client->appHandle = services::GetSessionApp(session);
    client->sessionServices = services::GetSessionServices(session);
    client->mainWindow = services::GetSessionWindow(client->settings);
    client->pathServices = services::GetPathServices(session);
    client->tfSession = makeTransferFunctionSession(session);
    client->requestText = makeRequestText();
    client->workText = services::Owned<text::TextBuffer>::make();
    services::RegisterCleanup(session, ZhstTransferCleanupSlot, xferCleanup);
    return client;
}

// Registered until its session has stopped: what the provider lets in meanwhile finds the client.
void destroyClient(ZXFRPCSCLIENT* client) {
    if (!client) return;
    client->tfSession.reset();
    client->requestText.reset();
    client->workText.reset();
    services::RegisterCleanup(client->session, ZhstTransferCleanupSlot, nullptr);
    if (client == currentClient) {
        currentClient = nullptr;
        currentSession = 0;
    }
    services::Owned<ZXFRPCSCLIENT>::adopt(client).reset();
}

ZXFRPCSCLIENT* findClient(services::SessionHandle session) {
    return session == currentSession ? currentClient : nullptr;
}

}  // namespace client

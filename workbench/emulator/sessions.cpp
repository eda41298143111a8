#include "emulator/sessions.h"

#include <memory>

#include "emulator/journal.h"
#include "emulator/platform_side.h"
#include "host/conversion.h"
#include "host/setting_ids.h"

namespace emulator {
namespace {

std::vector<std::unique_ptr<Session>> sessions;

std::uint32_t partOf(std::uint32_t handle, SessionPart known, SessionPart wanted) {
    const Session* session = findSession(handle, known);
    return session ? session->handle(wanted) : 0;
}

}  // namespace

Session* findSession(std::uint32_t handle, SessionPart part) {
    const std::uint32_t index = handle / 10;
    if (handle % 10 != static_cast<std::uint32_t>(part) || index >= sessions.size()) return nullptr;
    return sessions[index].get();
}

host::SessionHandle newSession() {
    connectDesktop();
    auto session = std::make_unique<Session>();
    session->index = static_cast<std::uint32_t>(sessions.size());
    session->numbers[host::setting::HostCodePage] = 37;
    sessions.push_back(std::move(session));
    return sessions.back()->handle(SessionPart::Session);
}

void setClauses(host::SessionHandle session, const Clauses& clauses) {
    if (Session* found = findSession(session, SessionPart::Session)) found->clauses = clauses;
}

void runCleanup(host::SessionHandle session, std::uint32_t slot) {
    Session* owner = findSession(session, SessionPart::Session);
    if (!owner) return;
    const auto found = owner->cleanups.find(slot);
    // The call-back may remove itself, so the entry is not used behind the call.
    if (found != owner->cleanups.end()) found->second(session);
}

std::uint32_t watchCount() {
    std::size_t count = 0;
    for (const auto& session : sessions) count += session->watches.size();
    return static_cast<std::uint32_t>(count);
}

void forgetSessions() { sessions.clear(); }

}  // namespace emulator

using namespace emulator;
using journalled::Call;

host::SettingsHandle ZHST_CALL zhstGetSessionSettings(host::SessionHandle session) {
    return Call("GetSessionSettings", session).result(partOf(session, SessionPart::Session, SessionPart::Settings));
}

host::AppHandle ZHST_CALL zhstGetSessionApp(host::SessionHandle session) {
    return Call("GetSessionApp", session).result(partOf(session, SessionPart::Session, SessionPart::App));
}

host::WindowHandle ZHST_CALL zhstGetSessionWindow(host::SettingsHandle settings) {
    return Call("GetSessionWindow", settings).result(partOf(settings, SessionPart::Settings, SessionPart::Window));
}

host::ConverterHandle ZHST_CALL zhstGetEmulatorConverter(host::SessionHandle session) {
    return Call("GetEmulatorConverter", session).result(partOf(session, SessionPart::Session, SessionPart::Converter));
}

host::TextServicesHandle ZHST_CALL zhstGetTextServices(host::SessionHandle session) {
    return Call("GetTextServices", session).result(partOf(session, SessionPart::Session, SessionPart::TextServices));
}

// From here on the library is certainly there, on platforms where the desktop is connected through it.
void ZHST_CALL zhstAttachSession(host::SessionHandle session) {
    Call("AttachSession", session);
    connectDesktop();
}

void ZHST_CALL zhstRegisterCleanup(host::SessionHandle session, std::uint32_t slot, host::CleanupCallback callback) {
    Call("RegisterCleanup", session, slot, journalled::Address{reinterpret_cast<void*>(callback)});
    Session* found = findSession(session, SessionPart::Session);
    if (!found) return;
    if (callback)
        found->cleanups[slot] = callback;
    else
        found->cleanups.erase(slot);
}

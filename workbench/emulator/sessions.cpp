#include "emulator/sessions.h"

#include <memory>

#include "Z7XFRPCS/conversion.h"
#include "Z7XFRPCS/settings.h"
#include "emulator/journal.h"
#include "emulator/platform_side.h"

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

ZhstSession newSession() {
    connectDesktop();
    auto session = std::make_unique<Session>();
    session->index = static_cast<std::uint32_t>(sessions.size());
    session->numbers[zhst::setting::HostCodePage] = 37;
    sessions.push_back(std::move(session));
    return sessions.back()->handle(SessionPart::Session);
}

void setClauses(ZhstSession session, const Clauses& clauses) {
    if (Session* found = findSession(session, SessionPart::Session)) found->clauses = clauses;
}

void runCleanup(ZhstSession session, std::uint32_t slot) {
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

ZhstSettings ZHST_CALL zhstGetSessionSettings(ZhstSession session) {
    return Call("GetSessionSettings", session).result(partOf(session, SessionPart::Session, SessionPart::Settings));
}

ZhstApp ZHST_CALL zhstGetSessionApp(ZhstSession session) {
    return Call("GetSessionApp", session).result(partOf(session, SessionPart::Session, SessionPart::App));
}

ZhstWindow ZHST_CALL zhstGetSessionWindow(ZhstSettings settings) {
    return Call("GetSessionWindow", settings).result(partOf(settings, SessionPart::Settings, SessionPart::Window));
}

ZhstConverter ZHST_CALL zhstGetEmulatorConverter(ZhstSession session) {
    return Call("GetEmulatorConverter", session).result(partOf(session, SessionPart::Session, SessionPart::Converter));
}

ZhstTextServices ZHST_CALL zhstGetTextServices(ZhstSession session) {
    return Call("GetTextServices", session).result(partOf(session, SessionPart::Session, SessionPart::TextServices));
}

// From here on the library is certainly there, on platforms where the desktop is connected through it.
void ZHST_CALL zhstAttachSession(ZhstSession session) {
    Call("AttachSession", session);
    connectDesktop();
}

void ZHST_CALL zhstRegisterCleanup(ZhstSession session, std::uint32_t slot, ZhstCleanup callback) {
    Call("RegisterCleanup", session, slot, journalled::Address{reinterpret_cast<void*>(callback)});
    Session* found = findSession(session, SessionPart::Session);
    if (!found) return;
    if (callback)
        found->cleanups[slot] = callback;
    else
        found->cleanups.erase(slot);
}

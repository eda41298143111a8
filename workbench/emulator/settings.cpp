#include "emulator/settings.h"

#include <algorithm>
#include <cstring>

#include "emulator/faults.h"
#include "emulator/journal.h"

namespace emulator {
namespace {

bool isWatched(const Session& session, std::uint32_t id) { return id >= Session::DenseSettings || session.watched[id]; }

// Watchers hear of every write, also of one that changes nothing; they may unwatch, and free the library's session,
// while they are called. Apart, since nearly every write is of a setting that nobody watches.
[[gnu::cold, gnu::noinline]] void tellWatchers(Session& session, std::uint32_t id, std::int32_t value,
                                               std::int32_t old) {
    const std::vector<Watch> told = session.watches;
    for (const Watch& watch : told)
        if (watch.id == id) watch.watch(session.handle(SessionPart::Session), id, value, old);
}

void writeNumber(Session& session, std::uint32_t id, std::int32_t value) {
    const std::int32_t old = settingNumber(session, id);
    if (id < Session::DenseSettings)
        session.numbers[id] = value;
    else
        session.furtherNumbers[id] = value;
    if (isWatched(session, id)) [[unlikely]]
        tellWatchers(session, id, value, old);
}

}  // namespace

const std::string* settingText(const Session& session, std::uint32_t id) {
    const auto found = session.texts.find(id);
    return found == session.texts.end() || found->second.empty() ? nullptr : &found->second;
}

void set(ZhstSession session, std::uint32_t id, std::int32_t value) {
    if (Session* found = findSession(session, SessionPart::Session)) writeNumber(*found, id, value);
}

void set(ZhstSession session, std::uint32_t id, const std::string& value) {
    if (Session* found = findSession(session, SessionPart::Session)) found->texts[id] = value;
}

std::int32_t number(ZhstSession session, std::uint32_t id) {
    const Session* found = findSession(session, SessionPart::Session);
    return found ? settingNumber(*found, id) : 0;
}

std::string text(ZhstSession session, std::uint32_t id) {
    const Session* found = findSession(session, SessionPart::Session);
    const std::string* value = found ? settingText(*found, id) : nullptr;
    return value ? *value : std::string();
}

}  // namespace emulator

using namespace emulator;
using journalled::Call;

std::int32_t ZHST_CALL zhstGetSetting(ZhstSettings settings, std::uint32_t id) {
    const Session* session = findSession(settings, SessionPart::Settings);
    return Call("GetSetting", settings, journalled::Setting{id}).result(session ? settingNumber(*session, id) : 0);
}

void ZHST_CALL zhstSetSetting(ZhstSettings settings, std::uint32_t id, std::int32_t value) {
    Call("SetSetting", settings, journalled::Setting{id}, value);
    if (Session* session = findSession(settings, SessionPart::Settings)) writeNumber(*session, id, value);
}

std::uint32_t ZHST_CALL zhstGetStringSetting(ZhstSettings settings, std::uint32_t id, char* buffer,
                                             std::uint32_t size) {
    const Session* session = findSession(settings, SessionPart::Settings);
    const std::string* text = session ? settingText(*session, id) : nullptr;
    if (size > 0 && (text || !faults().giveNoMore)) {
        const std::size_t length = text ? std::min<std::size_t>(text->size(), size - 1) : 0;
        if (length > 0) std::memcpy(buffer, text->data(), length);
        buffer[length] = 0;
    }
    const char* const shown = text ? buffer : "";
    const Call call("GetStringSetting", settings, journalled::Setting{id}, size > 0 ? shown : nullptr, size);
    return call.result(text ? 1u : 0u);
}

void ZHST_CALL zhstSetStringSetting(ZhstSettings settings, std::uint32_t id, const char* text) {
    Call("SetStringSetting", settings, journalled::Setting{id}, text);
    if (Session* session = findSession(settings, SessionPart::Settings)) session->texts[id] = text ? text : "";
}

void ZHST_CALL zhstWatchSetting(ZhstSettings settings, std::uint32_t id, ZhstSettingWatch watch) {
    Call("WatchSetting", settings, journalled::Setting{id}, journalled::Address{reinterpret_cast<void*>(watch)});
    Session* session = findSession(settings, SessionPart::Settings);
    if (!session || !watch) return;
    session->watches.push_back({id, watch});
    if (id < Session::DenseSettings) session->watched[id] = true;
}

// Takes back one registration: two clients of one session register the same call-back.
void ZHST_CALL zhstUnwatchSetting(ZhstSettings settings, std::uint32_t id, ZhstSettingWatch watch) {
    Call("UnwatchSetting", settings, journalled::Setting{id}, journalled::Address{reinterpret_cast<void*>(watch)});
    Session* session = findSession(settings, SessionPart::Settings);
    if (!session) return;
    auto& watches = session->watches;
    const auto found = std::find_if(watches.begin(), watches.end(),
                                    [=](const Watch& entry) { return entry.id == id && entry.watch == watch; });
    if (found != watches.end()) watches.erase(found);
    const bool more = std::any_of(watches.begin(), watches.end(), [=](const Watch& entry) { return entry.id == id; });
    if (id < Session::DenseSettings) session->watched[id] = more;
}

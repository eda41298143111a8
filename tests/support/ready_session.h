#pragma once

#include <cstdint>
#include <string>

#include "emulator/emulator.h"
#include "support/library.h"
#include "support/recording_user.h"

// One client in a fresh emulator, ready to transfer between a PC file and QGPL/CUST: every setting a transfer needs is
// there, the provider is the scripted one of the IBM family, the journal is off. For programs that are no tests.
class ReadySession {
public:
    enum class Direction : std::uint32_t { Receive = 0, Send = 1 };

    ReadySession(const std::string& pcFile, const emulator::PcSetup& pc);
    ~ReadySession();
    ReadySession(const ReadySession&) = delete;
    ReadySession& operator=(const ReadySession&) = delete;

    // Null when the emulator had no memory for one.
    ZXFRPCSCLIENT* client() const { return client_; }
    ZhstSession handle() const { return session_; }
    void transfer(Direction direction);
    void deleteClient();

    void set(std::uint32_t id, std::int32_t value) { emulator::set(session_, id, value); }
    void set(std::uint32_t id, const std::string& value) { emulator::set(session_, id, value); }
    std::int32_t number(std::uint32_t id) const { return emulator::number(session_, id); }
    // The first message since the last transfer began; empty when there is none.
    std::string message() const { return user_.messages.empty() ? std::string() : user_.messages.front().text; }

private:
    const Library& library_ = Library::get();
    RecordingUser user_;
    ZhstSession session_ = 0;
    ZXFRPCSCLIENT* client_ = nullptr;
};

// Every setting that a transfer needs, for an IBM provider, a comma-separated PC file and QGPL/CUST.
void completeSettings(ZhstSession session, const std::string& pcFile);

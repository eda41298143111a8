#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "Z7XFRPCS/objects.h"
#include "Z7XFRPCS/session.h"
#include "emulator/emulator.h"

// The sessions, and what a handle leads to.
namespace emulator {

// The last digit of a handle says which part of a session it names, the digits before it which session, from 0. So a
// handle that is used for another part's is noticed, and a journal can be read.
enum class SessionPart : std::uint32_t {
    Session = 1,
    App = 2,
    Window = 3,
    Converter = 4,
    TextServices = 5,
    Settings = 7
};

struct Watch {
    std::uint32_t id;
    ZhstSettingWatch watch;
};

// Single-byte conversion between the session's host page and the PC page, made when first needed.
struct ConversionTables {
    bool made = false;
    bool usable = false;
    std::int32_t hostPage = 0;
    std::uint64_t pcNumber = 0;  // pcSetupNumber() of the tables
    std::array<std::uint8_t, 256> hostToPc{};
    std::array<std::uint8_t, 256> pcToHost{};
};

struct Session {
    static constexpr std::uint32_t DenseSettings = 1024;

    std::uint32_t index = 0;
    std::array<std::int32_t, DenseSettings> numbers{};
    std::unordered_map<std::uint32_t, std::int32_t> furtherNumbers;  // ids from DenseSettings on
    std::unordered_map<std::uint32_t, std::string> texts;
    std::bitset<DenseSettings> watched;
    std::vector<Watch> watches;
    std::map<std::uint32_t, ZhstCleanup> cleanups;
    Clauses clauses;
    bool commandFailed = false;
    ConversionTables conversion;
    ZhstPathServices pathServices = {};
    ZhstCodePageServices codePageServices = {};

    std::uint32_t handle(SessionPart part) const { return index * 10 + static_cast<std::uint32_t>(part); }
};

// Null for a handle that is not one, or that names another part of a session.
Session* findSession(std::uint32_t handle, SessionPart part);

std::uint32_t watchCount();
void forgetSessions();

}  // namespace emulator

#pragma once

#include <cstdint>
#include <string>

#include "emulator/sessions.h"

// The settings of a session, for the services that read or write one themselves.
namespace emulator {

inline std::int32_t settingNumber(const Session& session, std::uint32_t id) {
    if (id < Session::DenseSettings) return session.numbers[id];
    const auto found = session.furtherNumbers.find(id);
    return found == session.furtherNumbers.end() ? 0 : found->second;
}

// Null when it is empty.
const std::string* settingText(const Session& session, std::uint32_t id);

}  // namespace emulator

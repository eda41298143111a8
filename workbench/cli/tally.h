#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "terminal_user.h"

// The last line of a transfer: how it ended, records, bytes, file.
struct Tally {
    std::string text;
    ExitStatus exitStatus = ExitFailed;
    // The same for a program; what is empty is not known, or there is none.
    std::optional<std::uint64_t> records{}, bytes{};
    std::string pcFile{}, hostFile{};
    std::vector<ShownMessage> messages{};
    std::vector<Note> notes{};
    std::vector<std::string> entries{};  // of a listing, as JSON
};

Tally transferTally(const TerminalUser& user, const PcText& pcText, ZhstSession session, bool sending);

#pragma once

#include <string>

#include "terminal_user.h"

// The last line of a transfer: how it ended, records, bytes, file.
struct Tally {
    std::string text;
    int exitStatus = ExitFailed;
};

Tally transferTally(const TerminalUser& user, const PcText& pcText, ZhstSession session, bool sending);

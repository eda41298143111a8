#pragma once

#include <filesystem>

#include "tally.h"
#include "terminal_user.h"
#include "transfer_library.h"

// Reads the PC file of a complete receive back (--verify), tells what of it does not say what the host's records say,
// and puts the outcome into the tally. `session` is that of the receive, which has no client any more; `user` has kept
// the records.
void verifyReceived(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
                    const std::filesystem::path& programFolder, ZhstSession session, TerminalUser& user, Tally& tally);

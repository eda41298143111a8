#pragma once

#include <filesystem>
#include <optional>

#include "command_line.h"
#include "notes.h"
#include "tally.h"
#include "transfer_library.h"

// Checks the PC file of a send, tells what it finds and, where all records would be taken but not all would arrive as
// they are written, asks whether to go on. Nothing when the send may run; otherwise how the command ends, which with
// --check is always so. `session` has all settings of the send, and no client.
std::optional<Tally> checkBeforeSend(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
                                     const std::filesystem::path& programFolder, ZhstSession session, Notes& notes);

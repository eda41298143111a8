#pragma once

#include "command_line.h"
#include "tally.h"
#include "terminal_user.h"
#include "transfer_library.h"

// Lists a catalogue on standard output, one line an entry: name, description and, for fields, type and length,
// separated by tabs.
Tally browse(const TransferLibrary& library, const CommandLine& line, const PcText& pcText, const TerminalUser& user,
             ZhstSession session);

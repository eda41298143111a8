#pragma once

#include <string_view>
#include <vector>

#include "command_line.h"
#include "host_layout.h"
#include "tally.h"
#include "terminal_user.h"
#include "transfer_library.h"

// The layouts of the files whose fields are to be listed, as their records have them. To be made while the session has
// no client.
class FieldLayouts {
public:
    FieldLayouts(const TransferLibrary& library, const CommandLine& line, const PcText& pcText, ZhstSession session);

    std::int32_t fileCount() const { return static_cast<std::int32_t>(layouts_.size()); }
    // By a listed name, which among several files begins with the number of its own: T2.NAME. Null when the host
    // describes none.
    const HostColumn* find(std::string_view name) const;

private:
    std::vector<HostLayout> layouts_;
};

// Lists a catalogue on standard output, one line an entry, separated by tabs: name and description; for fields name,
// type, length, decimals, code page, bytes in front of it in the record, description. On a terminal fields are a table.
Tally browse(const TransferLibrary& library, const CommandLine& line, const PcText& pcText, const TerminalUser& user,
             ZhstSession session, const FieldLayouts& layouts);

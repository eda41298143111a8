#pragma once

#include <filesystem>
#include <ostream>

#include "command_line.h"
#include "transfer_library.h"

// Tells of the record that ended a send what a check would have told: its place, the field, the text, why it is refused
// and what to do. Nothing where the PC file can be read only once, or a check finds nothing against it. `session` is
// that of the send, which has no client any more.
void printRefusedRecord(std::ostream& out, const TransferLibrary& library, const PcText& pcText,
                        const CommandLine& line, const std::filesystem::path& programFolder, ZhstSession session);

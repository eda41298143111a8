#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "command_line.h"
#include "host_layout.h"
#include "settings.h"

// What the settings of a session are by what the user says, and by what follows from that.

// What later ones say goes before: a settings file's, those of options, those of --set, then what they leave open: the
// type of the PC file by its name, and the start record behind a line of field names. Throws std::invalid_argument when
// the user's say does not go together.
std::vector<Assignment> wholeSettings(const CommandLine& line, const std::vector<Assignment>& fromFile);

// By the extension of a PC file's name, in any case; nothing for one that is not known.
std::optional<std::int32_t> typeOfName(std::string_view pcName);

// The names of a list of host files, which blanks and commas separate.
std::vector<std::string> hostFiles(std::string_view list);

// Nothing when the user says a code page, there is no host to ask, or it does not answer: else that of the texts of the
// host file that a transfer reads, writes or takes as a reference, or whose fields are listed. To be called while the
// session has no client.
std::optional<std::int32_t> hostCodePage(const CommandLine& line, const TransferLibrary& library, const PcText& pcText,
                                         ZhstSession session);

#pragma once

#include <filesystem>

#include "command_line.h"

// z7xfer host: tells where the host of the user's own is, to a program with --json, and makes it anew when the user
// wants that and confirms it. Gives the exit status. Throws std::runtime_error when it has no place, or cannot be made.
int hostCommand(const CommandLine& line, const std::filesystem::path& sample);

#pragma once

#include <string>

#include "command_line.h"
#include "json.h"
#include "tally.h"

// What a program reads of a run of z7xfer (--json), whose members are Z7X_RUN_MEMBERS: one object in one line.
std::string report(const CommandLine& line, const Tally& tally);

// The members that every run has, up to its text.
json::Object reportHead(const CommandLine& line, const Tally& tally);

#pragma once

#include <string>

#include "command_line.h"
#include "tally.h"

// What a program reads of a run of z7xfer (--json): one object in one line. A run that could not begin has none, only
// its status and the reason on standard error.
//
//     command   the command's name
//     status    the exit status
//     text      the tally as a person reads it
//     outcome   complete, closed, cancelled or failed; of a check alone, its first word
//     records   in the PC file, on the screen or accepted by the host
//     bytes     written to the PC file, or read from it; absent where nothing is known of them
//     pcFile, hostFile   their names, as they were given; absent where there is none
//     messages  the messages that were shown, {"id", "text"} each; 0 is the id of those about PC files
//     notes     what z7xfer noted before records went over, {"text", "advice"} each
//     entries   of browse: {"name", "description"} each; of its fields {"name", "description", "type"}
std::string report(const CommandLine& line, const Tally& tally);

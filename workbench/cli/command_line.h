#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "exit_status.h"
#include "questions.h"
#include "settings.h"

enum class Command { Receive, Send, Demo, Browse, Settings, Host };

// Of texts in standard input and output.
enum class StreamEncoding { Pc, Terminal };

// What the user asked for.
struct CommandLine {
    Command command = Command::Receive;
    std::string commandName;
    std::vector<Assignment> options;  // what names and options stand for
    std::vector<Assignment> sets;     // --set, which has the last word
    emulator::Clauses clauses;
    emulator::PcSetup pc = emulator::usualPc();
    std::string filter;  // of browse; of settings, a name or a part of one
    bool fields = false;
    std::string settingsFile, journalFile;         // empty: none
    std::string providerFolder, hostData;          // empty: beside the program
    bool noClobber = false;                        // a receive leaves a PC file that exists
    bool appends = false;                          // a send adds to the records of its member
    bool reset = false;                            // the host of the user's own is made anew
    bool header = false;                           // the PC file begins with a line of field names
    std::optional<StreamEncoding> streamEncoding;  // of standard input and output as PC files
    std::optional<questions::StandingAnswer> answer;
    bool quiet = false;
    // Of send: whether the file is only checked, not at all, and whether what changes on the way may.
    bool checkOnly = false, unchecked = false, allowChanges = false;
    bool verify = false;  // a receive reads its PC file back
    bool json = false;    // the tally, or what is listed, is for a program
};

namespace CLI {
class App;
}

// Hands the parser over, as it is before anything was parsed: names, values and help of all commands.
void describeCommandLine(const std::function<void(const CLI::App&)>& describe);

// From the arguments behind the program's name, in UTF-8. Nothing when the program is to end with `exitStatus`: help
// was asked for, or the usage was wrong and has been told.
std::optional<CommandLine> parseCommandLine(std::vector<std::string> arguments, ExitStatus* exitStatus);

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "command_line.h"

// The command line in plain words, for documents that describe it.

// What stands behind an option, or in the place of a positional argument.
enum class ValueKind { None, Words, File, Folder, Assignment, SettingName, Other };

struct OptionWords {
    std::vector<std::string> names;  // "--quiet", "-q"; of a positional argument, its name alone
    bool positional = false;
    bool required = false;
    bool repeatable = false;
    ValueKind kind = ValueKind::None;
    std::string value;               // as the help writes it: "FILE"
    std::vector<std::string> words;  // of ValueKind::Words
    std::string help, group;
};

struct CommandWords {
    std::string name, help;
    std::vector<OptionWords> options;
};

struct ProgramWords {
    std::string name, help, footer;
    std::vector<OptionWords> options;  // of the program itself
    std::vector<CommandWords> commands;
};

// The group of the options that are a command's own.
inline constexpr std::string_view OwnGroup = "Options";

ProgramWords programWords();

// The three documents.
std::string manual(const ProgramWords& program);
std::string bashCompletion(const ProgramWords& program);
std::string zshCompletion(const ProgramWords& program);

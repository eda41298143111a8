#pragma once

#include <ostream>
#include <string>
#include <string_view>

// The settings for a person to read: with their number, name and meaning, the values that they take by name, and what
// they are unless given: all of them in short, those with `name` in theirs, or one in full, by its name or number.
// Throws std::invalid_argument when there is none, with all that there are.
void printSettings(std::ostream& out, std::string_view name);

// The same rows for a program: {"settings": [...]} in one line, of each
//
//     number, name, kind   number, choice, switch or text
//     meaning, default     as a person reads and writes them
//     longest              bytes of a text; absent when any length goes
//     writer, reading      user, library or both; once, live or never
//     values               {"value", "word", "meaning"} each; of a choice there are no others
std::string settingsReport(std::string_view name);

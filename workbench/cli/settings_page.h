#pragma once

#include <ostream>
#include <string>
#include <string_view>

// The settings for a person to read: with their number, name and meaning, the values that they take by name, and what
// they are unless given: all of them in short, those with `name` in theirs, or one in full, by its name or number.
// Throws std::invalid_argument when there is none, with all that there are.
void printSettings(std::ostream& out, std::string_view name);

// The same rows for a program: {"settings": [...]} in one line, of each Z7X_SETTING_MEMBERS.
std::string settingsReport(std::string_view name);

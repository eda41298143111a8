#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "emulator/emulator.h"
#include "pc_text.h"

// Settings as a person writes them.
struct Assignment {
    std::uint32_t id = 0;
    std::variant<std::int32_t, std::string> value;  // a text in UTF-8
};

// "ID=VALUE" or "NAME=VALUE", names in any case. Throws std::invalid_argument with the reason.
Assignment parseAssignment(std::string_view text);

// Lines of that form; empty lines and lines that begin with '#' are skipped. Throws std::invalid_argument with
// "FILE:LINE: reason".
std::vector<Assignment> readSettingsFile(const std::string& file);

// Throws std::invalid_argument for a text that the PC's code page cannot hold.
void apply(ZhstSession session, const std::vector<Assignment>& assignments, const PcText& pcText);

// A session that needs no connection dialog and transfers with an English user's habits.
std::vector<Assignment> defaultSettings();

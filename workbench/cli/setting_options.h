#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

#include "settings.h"

// What a check of the parser answers: nothing when `parse` takes the text, else the reason that it throws.
std::string reasonAgainst(const std::function<void()>& parse);

// Options that stand for a setting: what is given on the command line, and only that, becomes an assignment.
class SettingOptions {
public:
    // Both outlive the parsing.
    SettingOptions(CLI::App& app, std::vector<Assignment>& assignments) : app_(app), assignments_(assignments) {}

    CLI::Option* text(const std::string& name, std::uint32_t id, const std::string& help);
    void number(const std::string& name, std::uint32_t id, const std::string& help);
    // By the words of the setting's table.
    void choice(const std::string& name, std::uint32_t id, const std::string& help);
    void flag(const std::string& name, std::uint32_t id, const std::string& help);
    // A description file: its name, and the setting that asks for it.
    void description(const std::string& name, std::uint32_t wanted, std::uint32_t id, const std::string& help);
    // Those that a transfer needs every day.
    void everyday();
    // Of every command that talks to a host.
    void connection();

private:
    CLI::App& app_;
    std::vector<Assignment>& assignments_;
};

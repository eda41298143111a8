#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "command_line.h"

// What each command takes. A parser fills `line`, which outlives the program's parser `program`.
void addReceive(CLI::App& program, CommandLine& line);
void addSend(CLI::App& program, CommandLine& line);
void addDemo(CLI::App& program, CommandLine& line);
void addBrowse(CLI::App& program, CommandLine& line);
void addSettings(CLI::App& program, CommandLine& line);
void addHost(CLI::App& program, CommandLine& line);

// A command of this name, which is `line`'s when it is given.
CLI::App* addCommand(CLI::App& program, CommandLine& line, const std::string& name, Command which,
                     const std::string& help);

// For a program that reads what is told.
void addJson(CLI::App& app, CommandLine& line);

// Of those that read or write a PC file.
void addPcFile(CLI::App& app, CommandLine& line, const std::string& header);

// What every command and the program itself take.
void addCommon(CLI::App& app, CommandLine& line);

#include <set>

#include "documents/command_words.h"
#include "emulator/setting_rows.h"
#include "json_members.h"

// The manual page, in the man macros.

namespace {

// A text that the macros leave alone: no request, no escape, and hyphens that can be copied.
std::string plain(std::string_view text) {
    std::string result = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
    for (const char letter : text) {
        if (letter == '\\') {
            result += "\\e";
        } else if (letter == '-') {
            result += "\\-";
        } else if (letter == '\n') {
            result += "\n.br\n";
        } else {
            result += letter;
        }
    }
    return result;
}

std::string bold(std::string_view text) { return "\\fB" + plain(text) + "\\fR"; }
std::string variable(std::string_view text) { return "\\fI" + plain(text) + "\\fR"; }

// "-q, --quiet", "--type {csv,tab}"
std::string term(const OptionWords& option) {
    if (option.positional) return variable(option.names.front());
    std::string text;
    for (const std::string& name : option.names) text += (text.empty() ? "" : ", ") + bold(name);
    return option.value.empty() ? text : text + " " + variable(option.value);
}

void entry(std::string& page, const std::string& term, std::string_view text) {
    page += ".TP\n" + term + "\n" + plain(text) + "\n";
}

void synopsis(std::string& page, const ProgramWords& program) {
    page += ".SH SYNOPSIS\n";
    for (const CommandWords& command : program.commands) {
        page += bold(program.name + " " + command.name) + " [" + variable("OPTIONS") + "]";
        for (const OptionWords& option : command.options) {
            if (!option.positional) continue;
            const std::string name = variable(option.names.front());
            page += option.required ? " " + name : " [" + name + "]";
        }
        page += "\n.br\n";
    }
}

void ownOptions(std::string& page, const CommandWords& command) {
    page += ".SS " + plain(command.name) + "\n" + plain(command.help) + ".\n";
    for (const OptionWords& option : command.options) {
        const bool help = option.names.back() == "--help";
        if (!help && (option.positional || option.group == OwnGroup)) entry(page, term(option), option.help);
    }
}

// Those of other groups stand at several commands, and here once.
void sharedOptions(std::string& page, const ProgramWords& program) {
    std::set<std::string> told;
    std::string group;
    for (const OptionWords& option : program.options) {
        if (option.positional || !told.insert(option.names.back()).second) continue;
        if (option.group != group)
            page += ".SS " + plain(option.group == OwnGroup ? "Of the program" : option.group) + "\n";
        group = option.group;
        entry(page, term(option), option.help);
    }
}

void settings(std::string& page) {
    page += ".SH SETTINGS\nWhat " + bold("--set") + " and " + bold("--settings") + " take, by name or number.\n";
    for (const emulator::SettingRow& row : emulator::settingRows) {
        std::string text = row.meaning;
        for (const emulator::SettingValueRow& value : emulator::valuesOf(row)) {
            text += "\n" + std::to_string(value.value) + " " + value.word;
            if (*value.meaning != '\0') text += std::string(": ") + value.meaning;
        }
        entry(page, bold(row.name) + " (" + std::to_string(row.number) + ")", text);
    }
}

void members(std::string& page) {
    page +=
        ".SH JSON\nWhat " + bold("--json") + " writes: one object in one line. A run that could not begin has none.\n";
    page += ".SS Of a run\n";
#define MEMBER_ENTRY(constant, name, meaning) entry(page, bold(name), meaning);
#define FIELD_MEMBER_ENTRY(constant, name, title, kind, meaning) entry(page, bold(name), meaning);
    Z7X_RUN_MEMBERS(MEMBER_ENTRY)
    page += ".SS Of a library, file or member that browse lists\n";
    Z7X_ENTRY_MEMBERS(MEMBER_ENTRY)
    page += ".SS Of a field that browse lists; what is not known is absent\n";
    Z7X_FIELD_MEMBERS(FIELD_MEMBER_ENTRY)
    page += ".SS Of a setting, in the array \\(lqsettings\\(rq\n";
    Z7X_SETTING_MEMBERS(MEMBER_ENTRY)
#undef FIELD_MEMBER_ENTRY
#undef MEMBER_ENTRY
}

}  // namespace

std::string manual(const ProgramWords& program) {
    std::string page = ".TH Z7XFER 1 \"\" \"Z7XFRPCS " Z7X_VERSION "\" \"User Commands\"\n";
    page += ".SH NAME\n" + plain(program.name) + " \\- transfer files between this PC and a host\n";
    synopsis(page, program);
    page += ".SH DESCRIPTION\n" + plain(program.help) + ".\n.SH COMMANDS\n";
    for (const CommandWords& command : program.commands) ownOptions(page, command);
    page += ".SH OPTIONS\n";
    sharedOptions(page, program);
    settings(page);
    members(page);
    page += ".SH EXIT STATUS\n" + plain(program.footer) + "\n";
    return page;
}

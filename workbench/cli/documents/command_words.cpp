#include "documents/command_words.h"

#include <CLI/CLI.hpp>

namespace {

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts(1);
    for (const char letter : text) {
        if (letter == separator) {
            parts.emplace_back();
        } else {
            parts.back() += letter;
        }
    }
    return parts;
}

// The parser writes a value's type and then its checks: "{csv,tab}", "N:NONNEGATIVE", "TEXT:FILE".
void readValue(OptionWords& words, const CLI::Option& option) {
    if (option.get_expected_max() == 0) return;
    const std::vector<std::string> types = split(option.get_type_name(), ':');
    const std::string &type = types.front(), check = types.back();
    const std::string name = words.positional ? words.names.front() : type;
    words.value = check == "FILE" || check == "DIR" ? check : type;
    if (type.starts_with('{') && type.ends_with('}')) {
        words.kind = ValueKind::Words;
        words.words = split(std::string_view(type).substr(1, type.size() - 2), ',');
    } else if (check == "DIR") {
        words.kind = ValueKind::Folder;
    } else if (check == "FILE" || name == "PCFILE" || (name == "NAME" && !words.positional)) {
        words.kind = ValueKind::File;
    } else if (type.ends_with("=VALUE")) {
        words.kind = ValueKind::Assignment;
    } else {
        words.kind = name == "NAME" ? ValueKind::SettingName : ValueKind::Other;
    }
}

OptionWords optionWords(const CLI::Option& option) {
    OptionWords words;
    words.positional = option.get_positional();
    if (words.positional) words.names.push_back(option.get_name());
    if (!words.positional) {
        for (const std::string& name : option.get_snames()) words.names.push_back("-" + name);
        for (const std::string& name : option.get_lnames()) words.names.push_back("--" + name);
    }
    words.required = option.get_required();
    words.help = option.get_description();
    words.group = option.get_group();
    readValue(words, option);
    words.repeatable = words.kind == ValueKind::Assignment;
    return words;
}

std::vector<OptionWords> optionsOf(const CLI::App& app) {
    std::vector<OptionWords> options;
    for (const CLI::Option* option : app.get_options()) {
        if (!option->get_group().empty()) options.push_back(optionWords(*option));
    }
    return options;
}

}  // namespace

ProgramWords programWords() {
    ProgramWords program;
    describeCommandLine([&program](const CLI::App& app) {
        program = {app.get_name(), app.get_description(), app.get_footer(), optionsOf(app), {}};
        for (const CLI::App* command : app.get_subcommands(nullptr)) {
            if (command->get_group().empty()) continue;
            program.commands.push_back({command->get_name(), command->get_description(), optionsOf(*command)});
        }
    });
    return program;
}

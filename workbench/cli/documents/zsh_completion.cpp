#include "documents/command_words.h"
#include "emulator/setting_rows.h"

// The completion for zsh: the tables of options as the specifications of _arguments.

namespace {

// Inside single quotes, where _arguments and _describe read brackets and colons.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char letter : text) {
        if (letter == '\'') {
            result += "'\\''";
        } else {
            if (letter == '[' || letter == ']' || letter == ':' || letter == '\\') result += '\\';
            result += letter;
        }
    }
    return result;
}

std::string action(const OptionWords& option) {
    switch (option.kind) {
        case ValueKind::Words: {
            std::string words;
            for (const std::string& word : option.words) words += (words.empty() ? "" : " ") + word;
            return "(" + words + ")";
        }
        case ValueKind::File:
            return "_files";
        case ValueKind::Folder:
            return "_files -/";
        case ValueKind::Assignment:
            return "_z7xfer_assignment";
        case ValueKind::SettingName:
            return "_z7xfer_setting_names";
        default:
            return " ";
    }
}

// "'(-q --quiet)'{-q,--quiet}'[no progress]'"
std::string entryOf(const OptionWords& option) {
    const std::string value = option.kind == ValueKind::None ? "" : ":" + escaped(option.value) + ":" + action(option);
    const std::string help = "[" + escaped(option.help) + "]" + value + "'";
    if (option.names.size() == 1) return (option.repeatable ? "'*" : "'") + option.names.front() + help;
    std::string all, list;
    for (const std::string& name : option.names) {
        all += (all.empty() ? "" : " ") + name;
        list += (list.empty() ? "" : ",") + name;
    }
    return "'(" + all + ")'{" + list + "}'" + help;
}

void arguments(std::string& text, const std::vector<OptionWords>& options) {
    int place = 0;
    for (const OptionWords& option : options) {
        text += " \\\n                ";
        if (!option.positional) {
            text += entryOf(option);
            continue;
        }
        text += "'" + std::to_string(++place) + (option.required ? ":" : "::") + escaped(option.names.front()) + ":" +
                action(option) + "'";
    }
    text += "\n";
}

void settingFunctions(std::string& text) {
    std::string names, cases;
    for (const emulator::SettingRow& row : emulator::settingRows) {
        names += std::string(" ") + row.name;
        std::string words;
        for (const emulator::SettingValueRow& value : emulator::valuesOf(row)) words += std::string(" ") + value.word;
        if (!words.empty()) cases += std::string("            ") + row.name + ") compadd --" + words + " ;;\n";
    }
    text += "_z7xfer_setting_names() { compadd \"$@\" --" + names + " }\n";
    text += "_z7xfer_assignment() {\n    if compset -P '*='; then\n        case ${IPREFIX%=} in\n" + cases +
            "        esac\n    else\n        _z7xfer_setting_names -S =\n    fi\n}\n";
}

}  // namespace

std::string zshCompletion(const ProgramWords& program) {
    std::string text = "#compdef " + program.name + "\n# Made from the tables of the command line.\n";
    settingFunctions(text);
    text +=
        "_z7xfer() {\n    local curcontext=$curcontext state line\n    typeset -A opt_args\n"
        "    local -a commands=(\n";
    for (const CommandWords& command : program.commands)
        text += "        '" + escaped(command.name) + ":" + escaped(command.help) + "'\n";
    text +=
        "    )\n    _arguments -C '(-h --help)'{-h,--help}'[help]' '--version[version]' \\\n"
        "        '1:command:->command' '*::argument:->argument'\n"
        "    case $state in\n        command) _describe command commands ;;\n"
        "        argument) case $words[1] in\n";
    for (const CommandWords& command : program.commands) {
        text += "            " + command.name + ") _arguments";
        arguments(text, command.options);
        text += "                ;;\n";
    }
    text += "        esac ;;\n    esac\n}\n_z7xfer \"$@\"\n";
    return text;
}

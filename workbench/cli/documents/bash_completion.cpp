#include "documents/command_words.h"
#include "emulator/setting_rows.h"

// The completion for bash: one function, whose cases are the tables of options and settings.

namespace {

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

std::string names(const std::vector<OptionWords>& options) {
    std::string text;
    for (const OptionWords& option : options) {
        if (!option.positional) text += (text.empty() ? "" : " ") + joined(option.names);
    }
    return text;
}

std::string settingNames(const char* behind) {
    std::string text;
    for (const emulator::SettingRow& row : emulator::settingRows)
        text += (text.empty() ? "" : " ") + std::string(row.name) + behind;
    return text;
}

// What follows the option, as the statements of a case.
std::string statements(const OptionWords& option) {
    switch (option.kind) {
        case ValueKind::Words:
            return "words=\"" + joined(option.words) + "\"";
        case ValueKind::Folder:
            return "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- \"$cur\"); return";
        case ValueKind::Assignment:
            return "compopt -o nospace; words=\"" + settingNames("=") + "\"";
        default:
            return "return";  // a file's name, or what nobody knows: bash offers files
    }
}

void optionCases(std::string& text, const CommandWords& command) {
    for (const OptionWords& option : command.options) {
        if (option.positional || option.kind == ValueKind::None) continue;
        for (const std::string& name : option.names)
            text += "        " + command.name + ":" + name + ") " + statements(option) + " ;;\n";
    }
}

void settingCases(std::string& text) {
    for (const emulator::SettingRow& row : emulator::settingRows) {
        std::string words;
        for (const emulator::SettingValueRow& value : emulator::valuesOf(row))
            words += (words.empty() ? "" : " ") + std::string(value.word);
        if (!words.empty()) text += std::string("        *:") + row.name + ") words=\"" + words + "\" ;;\n";
    }
}

// What a word is that follows no option.
void wordCases(std::string& text, const ProgramWords& program) {
    std::string commands;
    for (const CommandWords& command : program.commands) {
        commands += (commands.empty() ? "" : " ") + command.name;
        text += "        " + command.name + ":*)\n            [[ $cur == -* ]] && words=\"" + names(command.options) +
                "\"\n";
        for (const OptionWords& option : command.options) {
            if (option.positional && option.kind == ValueKind::SettingName)
                text += "            [[ $cur == -* ]] || words=\"" + settingNames("") + "\"\n";
        }
        text += "            ;;\n";
    }
    text += "        :*) words=\"" + commands + "\"; [[ $cur == -* ]] && words=\"" + names(program.options) + "\" ;;\n";
}

}  // namespace

std::string bashCompletion(const ProgramWords& program) {
    std::string commands;
    for (const CommandWords& command : program.commands) commands += (commands.empty() ? "" : "|") + command.name;
    std::string text = R"(# bash completion of z7xfer, made from the tables of its command line.
_z7xfer() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} command= word words=
    COMPREPLY=()
    # bash makes a word of the = in --type=csv and DateFormat=iso.
    if [[ $cur == = ]]; then
        cur=
    elif [[ $prev == = ]]; then
        prev=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    for word in "${COMP_WORDS[@]:1:COMP_CWORD - 1}"; do
        case $word in
)";
    text +=
        "            " + commands + ") command=$word; break ;;\n        esac\n    done\n    case $command:$prev in\n";
    for (const CommandWords& command : program.commands) optionCases(text, command);
    settingCases(text);
    wordCases(text, program);
    text += R"(    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
}
complete -o bashdefault -o default -F _z7xfer )" +
            program.name + "\n";
    return text;
}

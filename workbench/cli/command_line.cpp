#include "command_line.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <stdexcept>

#include "emulator/setting_rows.h"
#include "suggestions.h"

namespace {

namespace setting = zhst::setting;
namespace value = zhst::value;

// What a check of the parser answers: nothing when `parse` takes the text, else the reason that it throws.
std::string reasonAgainst(const std::function<void()>& parse) {
    try {
        parse();
        return {};
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
}

// "{file,member,replace}"
std::string words(std::uint32_t setting) {
    std::string list;
    for (const emulator::SettingValueRow& row : emulator::valuesOf(settingRow(setting)))
        list += (list.empty() ? "{" : ",") + std::string(row.word);
    return list + "}";
}

// What is wrong with the arguments, and what may have been meant by those that are none.
std::string usageMessage(const CLI::App* app, const CLI::Error& error) {
    const std::vector<CLI::App*> commands = app->get_subcommands();
    std::vector<std::string> known;
    if (commands.empty()) {
        for (const CLI::App* command : app->get_subcommands(nullptr)) known.push_back(command->get_name());
    }
    for (const CLI::App* command : commands) {
        for (const CLI::Option* option : command->get_options()) {
            for (const std::string& name : option->get_lnames()) known.push_back("--" + name);
        }
    }
    std::string message = std::string("z7xfer: ") + (commands.empty() ? "which command?" : error.what());
    const std::vector<std::string> strangers = app->remaining(true);
    if (!strangers.empty()) {
        if (commands.empty()) message = "z7xfer: there is no command " + strangers.front();
        message += didYouMean(strangers.front(), known);
    }
    return message + "\nRun with --help for more information.\n";
}

// Options that stand for a setting: what is given on the command line, and only that, becomes an assignment.
class SettingOptions {
public:
    SettingOptions(CLI::App* app, std::vector<Assignment>* assignments) : app_(app), assignments_(assignments) {}

    CLI::Option* text(const std::string& name, std::uint32_t id, const std::string& help) {
        return app_->add_option_function<std::string>(
            name, [this, id](const std::string& value) { assign(id, value); }, help);
    }
    void number(const std::string& name, std::uint32_t id, const std::string& help) {
        app_->add_option_function<std::int32_t>(
                name, [this, id](const std::int32_t& value) { assign(id, value); }, help)
            ->check(CLI::NonNegativeNumber)
            ->type_name("N");
    }
    // By the words of the setting's table.
    void choice(const std::string& name, std::uint32_t id, const std::string& help) {
        app_->add_option_function<std::string>(
                name, [this, id](const std::string& word) { assignments_->push_back(parseValue(id, word)); }, help)
            ->check([id](const std::string& word) { return reasonAgainst([&] { parseValue(id, word); }); })
            ->type_name(words(id));
    }
    void flag(const std::string& name, std::uint32_t id, const std::string& help) {
        app_->add_flag_callback(
            name, [this, id] { assign(id, 1); }, help);
    }
    // A description file: its name, and the setting that asks for it.
    void description(const std::string& name, std::uint32_t wanted, std::uint32_t id, const std::string& help) {
        app_->add_option_function<std::string>(
                name,
                [this, wanted, id](const std::string& value) {
                    assign(wanted, 1);
                    assign(id, value);
                },
                help)
            ->type_name("NAME");
    }

private:
    template <class Value>
    void assign(std::uint32_t id, const Value& value) {
        assignments_->push_back({id, value});
    }

    CLI::App* app_;
    std::vector<Assignment>* assignments_;
};

class Parser {
public:
    Parser();
    std::optional<CommandLine> parse(int argc, char** argv, int* exitStatus);

private:
    CLI::App* command(const std::string& name, Command which, const std::string& help);
    void addReceive();
    void addSend();
    void addDemo();
    void addBrowse();
    void addSettings();
    void addCommon(CLI::App* app);
    void addPc(CLI::App* app);
    // The options keep their place: what they captured is this object's.
    SettingOptions& settingOptions(CLI::App* app) {
        return *settingOptions_.emplace_back(std::make_unique<SettingOptions>(app, &line_.options));
    }

    CLI::App app_{"Transfers files between this PC and a host, with the library Z7XFRPCS", "z7xfer"};
    CommandLine line_;
    std::vector<std::unique_ptr<SettingOptions>> settingOptions_;
};

Parser::Parser() {
    app_.set_version_flag("--version", "z7xfer " Z7X_VERSION);
    app_.require_subcommand(1);
    app_.failure_message(usageMessage);
    app_.footer("Exit status: 0 the transfer is complete, 1 it failed or was cancelled, 2 wrong usage.");
    addReceive();
    addSend();
    addDemo();
    addBrowse();
    addSettings();
    addCommon(&app_);
}

CLI::App* Parser::command(const std::string& name, Command which, const std::string& help) {
    CLI::App* app = app_.add_subcommand(name, help);
    app->parse_complete_callback([this, which] { line_.command = which; });
    return app;
}

void Parser::addReceive() {
    CLI::App* app = command("receive", Command::Receive, "Receive records of host files");
    SettingOptions& options = settingOptions(app);
    options.text("HOSTFILE", setting::HostFileName, "LIB/FILE(MBR); several in one argument: \"LIB/A LIB/B\"")
        ->required();
    options.text("PCFILE", setting::PcFileName, "PC file to write; - or none is standard output");
    options.choice("--type", setting::ReceiveFileType, "PC file type, csv when not given");
    options.choice("--output", setting::ReceiveOutput, "where the records go, file when not given");
    app->add_option("--columns", line_.clauses.select, "the columns wanted, all when not given");
    app->add_option("--where", line_.clauses.where, "condition that the records meet");
    app->add_option("--join", line_.clauses.join, "condition that relates several files, as t1.A = t2.B");
    app->add_option("--group-by", line_.clauses.groupBy, "columns of the groups");
    app->add_option("--having", line_.clauses.having, "condition that the groups meet");
    app->add_option("--order-by", line_.clauses.orderBy, "columns to sort by");
    options.flag("--count", setting::RecordProgress, "count the records first, for a progress in percent");
    options.description("--describe", setting::WriteDescriptionFile, setting::ReceiveDescriptionFile,
                        "write a description of the PC file, beside it; *.fdf takes its name, a path stands as it is");
    addCommon(app);
}

void Parser::addSend() {
    CLI::App* app = command("send", Command::Send, "Send a PC file to a host file");
    SettingOptions& options = settingOptions(app);
    options.text("PCFILE", setting::PcFileName, "PC file to read")->required();
    options.text("HOSTFILE", setting::HostFileName, "LIB/FILE(MBR)")->required();
    options.choice("--type", setting::SendFileType,
                   "PC file type, csv when not given; that of the description has the last word");
    options.description("--description", setting::UseDescriptionFile, setting::SendDescriptionFile,
                        "description of the PC file, beside it; a data file needs one");
    options.flag("--source", setting::HostFileType, "the host file is a source file");
    options.number("--record-length", setting::RecordLength, "record length of a new source file, 92 when not given");
    options.choice("--create", setting::CreateMode,
                   "create the file and its member, or a member, or replace an existing member's data (when not "
                   "given), which --answer replace confirms");
    options.text("--reference", setting::ReferenceFile, "file that a new file takes its fields from")
        ->type_name("LIB/FILE");
    options.choice("--authority", setting::PublicAuthority, "public authority of a new file");
    options.text("--file-text", setting::FileText, "text of a new file");
    options.text("--member-text", setting::MemberText, "text of a new member");
    options.number("--start-record", setting::StartRecord, "first record of the PC file that is sent, from 1");
    addCommon(app);
}

void Parser::addDemo() {
    CLI::App* app = command("demo", Command::Demo, "Show the demonstration table, without a host");
    app->parse_complete_callback([this] {
        line_.command = Command::Demo;
        line_.options.push_back({setting::ConnectionType, value::DemonstrationConnection});
        line_.options.push_back({setting::ReceiveOutput, value::ToDisplay});
    });
    addCommon(app);
}

void Parser::addBrowse() {
    CLI::App* app = command("browse", Command::Browse, "List libraries, files and members, or the fields of files");
    app->add_option("FILTER", line_.filter, "what to list: LIB, LIB/, LIB/FILE; with --fields, files");
    app->add_flag("--fields", line_.fields, "list fields");
    app->add_option("--files", line_.fileCount, "number of files in a filter of fields; 2 and more qualify the names")
        ->check(CLI::PositiveNumber)
        ->type_name("N");
    addCommon(app);
}

void Parser::addSettings() {
    CLI::App* app = command("settings", Command::Settings, "List the settings of the emulator and their values");
    app->add_option("NAME", line_.filter, "a setting's name or number, or part of a name; all when not given")
        ->check([](const std::string& name) { return reasonAgainst([&] { settingsLike(name); }); })
        ->type_name("");
}

void Parser::addCommon(CLI::App* app) {
    const std::string group = "Common options";
    app->add_option_function<std::vector<std::string>>(
           "--set",
           [this](const std::vector<std::string>& texts) {
               for (const std::string& text : texts) line_.sets.push_back(parseAssignment(text));
           },
           "a setting of the emulator, applied last; repeatable; z7xfer settings lists them")
        ->check([](const std::string& text) { return reasonAgainst([&] { parseAssignment(text); }); })
        ->type_name("ID|NAME=VALUE")
        ->type_size(1)
        ->allow_extra_args(false)
        ->group(group);
    app->add_option("--settings", line_.settingsFile, "file of such settings, a line each, # before comments")
        ->check(CLI::ExistingFile)
        ->group(group);
    app->add_option("--providers", line_.providerFolder, "folder of the provider libraries")
        ->check(CLI::ExistingDirectory)
        ->group(group);
    app->add_option("--host-data", line_.hostData, "database of the sample host")
        ->check(CLI::ExistingFile)
        ->group(group);
    app->add_option("--journal", line_.journalFile, "write every service call of the library to a file")
        ->type_name("FILE")
        ->group(group);
    app->add_option_function<std::string>(
           "--answer", [this](const std::string& text) { line_.answer = questions::StandingAnswer::parse(text); },
           "answer to every question that it fits: replace, append, yes or no; or the number of a button")
        ->check([](const std::string& text) { return reasonAgainst([&] { questions::StandingAnswer::parse(text); }); })
        ->type_name("WORD")
        ->group(group);
    app->add_flag("--quiet,-q", line_.quiet, "no progress and no tally; messages are still shown")->group(group);
    addPc(app);
}

void Parser::addPc(CLI::App* app) {
    const std::string group = "The PC";
    const auto character = [&](const std::string& name, char* place, const std::string& help) {
        app->add_option_function<std::string>(
               name, [place](const std::string& value) { *place = value.front(); }, help)
            ->check([](const std::string& value) {
                return value.size() == 1 ? std::string() : std::string("must be one character");
            })
            ->type_name("C")
            ->group(group);
    };
    app->add_option("--ansi-code-page", line_.pc.ansiCodePage, "code page of its texts, 1252 when not given")
        ->type_name("N")
        ->group(group);
    app->add_option("--oem-code-page", line_.pc.oemCodePage, "code page of its oldest programs, 850 when not given")
        ->type_name("N")
        ->group(group);
    app->add_option("--language-id", line_.pc.languageId, "language of its user, 0x409 (English) when not given")
        ->type_name("N")
        ->group(group);
    character("--decimal", &line_.pc.decimalSeparator,
              "decimal separator, . when not given; for csv with a decimal comma give --list-separator too");
    character("--list-separator", &line_.pc.listSeparator,
              "separator of comma-separated files, a comma when not given");
}

std::optional<CommandLine> Parser::parse(int argc, char** argv, int* exitStatus) {
    try {
        app_.parse(argc, argv);
        return line_;
    } catch (const CLI::ParseError& error) {
        *exitStatus = app_.exit(error) == 0 ? ExitComplete : ExitUsage;
        return std::nullopt;
    }
}

}  // namespace

std::optional<CommandLine> parseCommandLine(int argc, char** argv, int* exitStatus) {
    return Parser().parse(argc, argv, exitStatus);
}

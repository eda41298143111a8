#include "command_line.h"

#include <algorithm>
#include <utility>

#include "commands.h"
#include "suggestions.h"
#include "version.h"

namespace {

constexpr const char* Purpose = "Transfers files between this PC and a host, with the library Z7XFRPCS";

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

void setUp(CLI::App& program, CommandLine& line) {
    program.set_version_flag("--version", versionText, "what this program is, and what its tables were made from");
    program.require_subcommand(1);
    program.allow_windows_style_options(false);  // what begins with a slash is a path
    program.failure_message(usageMessage);
    program.footer(exitStatusHelp());
    addReceive(program, line);
    addSend(program, line);
    addDemo(program, line);
    addBrowse(program, line);
    addSettings(program, line);
    addHost(program, line);
    addCommon(program, line);
}

}  // namespace

CLI::App* addCommand(CLI::App& program, CommandLine& line, const std::string& name, Command which,
                     const std::string& help) {
    CLI::App* app = program.add_subcommand(name, help);
    app->parse_complete_callback([&line, which] { line.command = which; });
    return app;
}

void describeCommandLine(const std::function<void(const CLI::App&)>& describe) {
    CLI::App program{Purpose, "z7xfer"};
    CommandLine line;
    setUp(program, line);
    describe(program);
}

std::optional<CommandLine> parseCommandLine(std::vector<std::string> arguments, ExitStatus* exitStatus) {
    CLI::App program{Purpose, "z7xfer"};
    CommandLine line;
    setUp(program, line);
    try {
        std::reverse(arguments.begin(), arguments.end());  // it takes the first one from the end
        program.parse(std::move(arguments));
        line.commandName = program.get_subcommands().front()->get_name();
        return line;
    } catch (const CLI::ParseError& error) {
        *exitStatus = program.exit(error) == 0 ? ExitComplete : ExitUsage;
        return std::nullopt;
    }
}

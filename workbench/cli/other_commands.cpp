#include "commands.h"
#include "setting_options.h"

namespace setting = zhst::setting;
namespace value = zhst::value;

void addDemo(CLI::App& program, CommandLine& line) {
    CLI::App* app = addCommand(program, line, "demo", Command::Demo, "Show the demonstration table, without a host");
    app->parse_complete_callback([&line] {
        line.command = Command::Demo;
        line.options.push_back({setting::ConnectionType, value::DemonstrationConnection});
        line.options.push_back({setting::ReceiveOutput, value::ToDisplay});
    });
    addCommon(*app, line);
}

void addBrowse(CLI::App& program, CommandLine& line) {
    CLI::App* app = addCommand(program, line, "browse", Command::Browse,
                               "List libraries, files and members, or the fields of files");
    app->add_option("FILTER", line.filter, "what to list: LIB, LIB/, LIB/FILE; with --fields, one file or several");
    app->add_flag("--fields", line.fields, "list fields");
    SettingOptions(*app, line.options).connection();
    addCommon(*app, line);
}

void addSettings(CLI::App& program, CommandLine& line) {
    CLI::App* app =
        addCommand(program, line, "settings", Command::Settings, "List the settings of the emulator and their values");
    app->add_option("NAME", line.filter, "a setting's name or number, or part of a name; all when not given")
        ->check([](const std::string& name) { return reasonAgainst([&] { settingsLike(name); }); })
        ->type_name("");
    addJson(*app, line);
}

void addHost(CLI::App& program, CommandLine& line) {
    CLI::App* app = addCommand(program, line, "host", Command::Host,
                               "Tell where the host of your own is, which takes what is sent");
    app->add_flag("--reset", line.reset,
                  "make it anew from the sample, when you confirm it; what was sent to it is lost");
    addCommon(*app, line);
}

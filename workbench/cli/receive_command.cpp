#include "commands.h"
#include "setting_options.h"

namespace setting = zhst::setting;
namespace value = zhst::value;

namespace {

void addExistingFile(CLI::App& app, CommandLine& line) {
    const auto action = [&app, &line](const char* name, std::int32_t number, const char* help) {
        return app.add_flag_callback(
            name,
            [&line, number] {
                line.options.push_back({setting::ExistingFileAction, number});
            },
            help);
    };
    CLI::Option* append = action("--append", value::Append, "add to a PC file that exists");
    CLI::Option* force = action("--force", value::Replace, "replace a PC file that exists, without a question");
    CLI::Option* leave = app.add_flag_callback(
        "--no-clobber",
        [&line] {
            line.options.push_back({setting::ExistingFileAction, value::AskUser});
            line.noClobber = true;
        },
        "receive nothing where the PC file, or its description, exists");
    append->excludes(force)->excludes(leave);
    force->excludes(leave);
}

}  // namespace

void addReceive(CLI::App& program, CommandLine& line) {
    CLI::App* app = addCommand(program, line, "receive", Command::Receive, "Receive records of host files");
    SettingOptions options(*app, line.options);
    options.text("HOSTFILE", setting::HostFileName, "LIB/FILE(MBR); several in one argument: \"LIB/A LIB/B\"")
        ->required();
    options.text("PCFILE", setting::PcFileName, "PC file to write; - or none is standard output");
    options.choice("--type", setting::ReceiveFileType,
                   "PC file type; when not given, that of the name's extension (csv, tab and tsv, dif, "
                   "txt and prn as text, bin and dat as none), else csv");
    options.choice("--output", setting::ReceiveOutput, "where the records go, file when not given");
    app->add_option("--columns", line.clauses.select, "the columns wanted, all when not given");
    app->add_option("--where", line.clauses.where, "condition that the records meet");
    app->add_option("--join", line.clauses.join, "condition that relates several files, as t1.A = t2.B");
    app->add_option("--group-by", line.clauses.groupBy, "columns of the groups");
    app->add_option("--having", line.clauses.having, "condition that the groups meet");
    app->add_option("--order-by", line.clauses.orderBy, "columns to sort by");
    options.flag("--count", setting::RecordProgress, "count the records first, for a progress in percent");
    options.description("--describe", setting::WriteDescriptionFile, setting::ReceiveDescriptionFile,
                        "write a description of the PC file, beside it; *.fdf takes its name, a path stands as it is");
    options.everyday();
    addPcFile(*app, line, "begin a csv or tab file with a line of field names");
    addExistingFile(*app, line);
    app->add_flag("--verify", line.verify,
                  "read the PC file back, and tell what another program, or a send, would not read as the host has it");
    addCommon(*app, line);
}

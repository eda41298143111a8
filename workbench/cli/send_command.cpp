#include <algorithm>

#include "commands.h"
#include "setting_options.h"
#include "suggestions.h"

namespace setting = zhst::setting;

namespace {

// A word more than the setting has: no request adds to a member, so the sample host is told beside the one for a member
// that exists.
constexpr const char* Append = "append";

void addCreate(CLI::App& app, CommandLine& line) {
    std::vector<std::string> words;
    for (const emulator::SettingValueRow& row : emulator::valuesOf(settingRow(setting::CreateMode)))
        words.emplace_back(row.word);
    words.emplace_back(Append);
    app.add_option_function<std::string>(
           "--create",
           [&line](const std::string& word) {
               line.appends = word == Append;
               if (line.appends)
                   line.options.push_back({setting::CreateMode, zhst::value::ReplaceMember});
               else
                   line.options.push_back(parseValue(setting::CreateMode, word));
           },
           "make a new file and its member, or a new member, or replace an existing member's records (when not given), "
           "which --answer replace confirms, or append to them")
        ->check([words](const std::string& word) {
            return std::find(words.begin(), words.end(), word) != words.end() ? "" : notOneOf(word, words);
        })
        ->type_name(CLI::detail::generate_set(words));
}

}  // namespace

void addSend(CLI::App& program, CommandLine& line) {
    CLI::App* app = addCommand(program, line, "send", Command::Send, "Send a PC file to a host file");
    SettingOptions options(*app, line.options);
    options.text("PCFILE", setting::PcFileName, "PC file to read; - is standard input")->required();
    options.text("HOSTFILE", setting::HostFileName, "LIB/FILE(MBR)")->required();
    options.choice("--type", setting::SendFileType,
                   "PC file type; when not given, that of the name's extension (csv, tab and tsv, dif, "
                   "txt and prn as text, bin and dat as none), else csv; that of the description has the last word");
    options.description("--description", setting::UseDescriptionFile, setting::SendDescriptionFile,
                        "description of the PC file, beside it; a data file needs one");
    options.flag("--source", setting::HostFileType, "the host file is a source file");
    options.number("--record-length", setting::RecordLength, "record length of a new source file, 92 when not given");
    addCreate(*app, line);
    options.text("--reference", setting::ReferenceFile, "file that a new file takes its fields from")
        ->type_name("LIB/FILE");
    options.choice("--authority", setting::PublicAuthority, "public authority of a new file");
    options.text("--file-text", setting::FileText, "text of a new file");
    options.text("--member-text", setting::MemberText, "text of a new member");
    CLI::Option* check = app->add_flag("--check", line.checkOnly,
                                       "tell what would not arrive as it is written, and send nothing; without this "
                                       "option a file is checked before it is sent");
    app->add_flag("--no-check", line.unchecked, "send without a check")->excludes(check);
    app->add_flag("--allow-changes", line.allowChanges, "send although some things will not arrive as written");
    options.number("--start-record", setting::StartRecord, "first record of the PC file that is sent, from 1");
    options.everyday();
    addPcFile(*app, line, "the file begins with a line of field names, which is not sent");
    addCommon(*app, line);
}

#include "commands.h"
#include "setting_options.h"

namespace setting = zhst::setting;

void addSend(CLI::App& program, CommandLine& line) {
    CLI::App* app = addCommand(program, line, "send", Command::Send, "Send a PC file to a host file");
    SettingOptions options(*app, line.options);
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
    addCommon(*app, line);
}

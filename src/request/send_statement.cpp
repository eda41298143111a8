#include "request/send_statement.h"

#include <charconv>

#include "Z7XFRPCS/settings.h"
#include "fdf/fdf_reader.h"

namespace request {
namespace {

constexpr std::size_t NumberText = 16;

bool failWithoutMemory(const ZXFRPCSCLIENT& client) {
    messages::show(client.messageOwner(), zhst::message::OutOfMemory);
    return false;
}

bool appendFields(ZXFRPCSCLIENT& client, text::TextBuffer& statement) {
    const auto names = services::OwnedBytes::make(fdf::NameListCapacity + 1, false);
    if (!names) return failWithoutMemory(client);
    if (!fdf::readFdf(*client.transferContext, client.pcFileName, names.data(), fdf::NameListCapacity)) return false;
    statement.append(names.data());
    return true;
}

// An unknown authority is none: no file is opened to everybody by mistake.
std::string_view authority(std::int32_t publicAuthority) {
    switch (publicAuthority) {
        case 0:
            return "PUBAUT(ALL) ";
        case 2:
            return "PUBAUT(READ) ";
        case 3:
            return "PUBAUT(READ/WRITE) ";
        default:
            return "PUBAUT(NONE) ";
    }
}

// Keyword and value go together, so that what does not fit leaves nothing behind. Type 1 alone has a record length; all
// others, data files or not, may take the layout of a reference file.
void appendLayout(text::TextBuffer& statement, const settings::TransferSettings& settings) {
    if (settings.hostFileType == zhst::value::SourceFile) {
        char digits[NumberText];
        const auto end = std::to_chars(digits, digits + NumberText, settings.recordLength).ptr;
        statement.append({"RCDLEN(", {digits, static_cast<std::size_t>(end - digits)}, ") "});
    } else if (*settings.referenceFile) {
        statement.append({"REFFILE(", settings.referenceFile, ") "});
    }
}

// Texts go as they were typed; an apostrophe in one is not doubled.
void appendMember(text::TextBuffer& statement, const settings::TransferSettings& settings) {
    statement.append("CRTMBR(YES) ");
    if (*settings.memberText) statement.append({"MBRTEXT('", settings.memberText, "') "});
}

void appendFile(text::TextBuffer& statement, const settings::TransferSettings& settings) {
    statement.append("CRTFILE(YES) ");
    statement.append({"FILETYPE(", settings.hostFileType != zhst::value::DataFile ? "SOURCE) " : "DATA) "});
    appendLayout(statement, settings);
    statement.append(authority(settings.publicAuthority));
    if (*settings.fileText) statement.append({"FILETEXT('", settings.fileText, "') "});
    appendMember(statement, settings);
}

}  // namespace

bool composeSendStatement(ZXFRPCSCLIENT& client) {
    settings::TransferSettings& settings = *client.transferSettings;
    if (!client.requestText || !client.requestText->assign("REPLACE ")) return failWithoutMemory(client);
    text::TextBuffer& statement = *client.requestText;
    // For the rest of the transfer: the records are those that the description names.
    if (settings.useDescriptionFile) settings.hostFileType = zhst::value::DataFile;
    if (settings.hostFileType != zhst::value::DataFile)
        statement.append("*");
    else if (!appendFields(client, statement))
        return false;
    statement.append({" into ", client.hostFileName, " "});
    if (settings.createMode == zhst::value::CreateFile) {
        appendFile(statement, settings);
    } else if (settings.createMode == zhst::value::CreateMember) {
        statement.append("CRTFILE(NO) ");
        appendMember(statement, settings);
    }
    return true;
}

}  // namespace request

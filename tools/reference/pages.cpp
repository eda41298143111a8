#include "reference/pages.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>

#include "Z7XFRPCS/dialogs.h"
#include "Z7XFRPCS/exports.h"
#include "Z7XFRPCS/messages.h"
#include "Z7XFRPCS/monitor.h"
#include "Z7XFRPCS/provider.h"
#include "Z7XFRPCS/settings.h"
#include "emulator/catalogue.h"
#include "messages/own_sentences.h"
#include "provider/transports.h"
#include "reference/declarations.h"

namespace reference {
namespace {

namespace catalogue = emulator::catalogue;

constexpr char Written[] =
    "<!-- Written by tools/rewrite_reference.sh from the lists and headers that the code is built of. -->\n\n";

// A text in a cell of a table.
std::string cell(std::string_view text) {
    std::string shown;
    for (const char character : text) {
        if (character == '|') shown += "\\|";
        if (character == '\n') shown += "<br>";
        if (character == '\t') shown += ' ';
        if (character != '|' && character != '\n' && character != '\t') shown += character;
    }
    return shown;
}

std::string code(std::string_view text) { return text.empty() ? std::string() : "`" + std::string(text) + "`"; }

std::string hexadecimal(std::uint32_t number) {
    char text[16];
    std::snprintf(text, sizeof(text), "0x%04X", number);
    return text;
}

// The beginning of a page.
std::string head(const std::string& title, std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of('\n'), text.size()));
    return "# " + title + "\n\n" + Written + std::string(text) + "\n\n";
}

std::string row(std::initializer_list<std::string> cells) {
    std::string line = "|";
    for (const std::string& each : cells) line += " " + cell(each) + " |";
    return line + "\n";
}

std::string table(std::initializer_list<std::string> heads) {
    std::string rule = "|";
    for (std::size_t at = 0; at < heads.size(); ++at) rule += "---|";
    return row(heads) + rule + "\n";
}

// With a capital letter in front, unless it begins with a name.
std::string capital(std::string text) {
    if (std::regex_search(text, std::regex("^[a-z]+([^A-Za-z0-9_]|$)")))
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

std::string paragraph(const char* label, const std::string& text) {
    return text.empty() ? "" : "*" + std::string(label) + ":* " + capital(text) + "\n\n";
}

// --- What is declared -----------------------------------------------------------------------------------------------

std::string described(const Declaration& declaration, const std::string& title) {
    std::string text =
        "### " + title + "\n\n```c\n" + declaration.code + ";\n```\n\n" + declaration.description + "\n\n";
    if (!declaration.parameters.empty()) {
        text += table({"Parameter", "Meaning"});
        for (const Parameter& each : declaration.parameters) text += row({code(each.name), each.meaning});
        text += "\n";
    }
    return text + paragraph("Result", declaration.result) + paragraph("When", declaration.when) +
           paragraph("Null or failure", declaration.failure);
}

// The name under which the documentation knows a service: without its prefix, but for the one that has it in its name.
std::string serviceName(const std::string& linkName) {
    if (linkName == "zhstMessageBox_scroll") return linkName;
    if (linkName == "zhstFormatStringSet") return "formatStringSet";
    return linkName.substr(4);
}

std::string contentsOf(const std::string& file) {
    std::ifstream stream(file);
    if (!stream) throw std::runtime_error(file + ": cannot be read");
    return {std::istreambuf_iterator<char>(stream), {}};
}

void checkServices(const std::string& sources, const std::set<std::string>& declared) {
    const std::string imported = contentsOf(sources + "/workbench/emulator/ZHSTSERV.def");
    std::set<std::string> names;
    const std::regex name("\n    (\\w+)@\\d+");
    for (std::sregex_iterator each(imported.begin(), imported.end(), name), end; each != end; ++each)
        names.insert((*each)[1]);
    for (const std::string& each : names)
        if (!declared.contains(each)) throw std::runtime_error("no header declares the service " + each);
    for (const std::string& each : declared)
        if (!names.contains(each)) throw std::runtime_error("ZHSTSERV.def lacks the service " + each);
}

struct ServiceGroup {
    const char* header;
    const char* title;
};
constexpr ServiceGroup ServiceGroups[] = {
    {"runtime.h", "Memory, libraries, the named store"},
    {"session.h", "Sessions, settings, messages, commands"},
    {"objects.h", "Objects of the session"},
    {"dialogs.h", "Progress dialog and connection dialog"},
    {"text_display.h", "Paged text display"},
    {"conversion.h", "Conversion of text"},
};

std::string headerFile(const std::string& sources, const char* header) {
    return sources + "/include/Z7XFRPCS/" + header;
}

bool isService(const Declaration& declaration) { return declaration.name.starts_with("zhst"); }

std::string servicesPage(const std::string& sources) {
    std::string text = head("Services of the emulator",
                            R"(
What a service library exports, each under the prefix `zhst`. All are `__stdcall` on 32-bit Windows and are called
on the emulator's user-interface thread; what they are handed by address is not kept, unless it is said otherwise.
The operations of objects stand in [objects.md](objects.md).)");
    std::set<std::string> names;
    for (const ServiceGroup& group : ServiceGroups) {
        text += "## " + std::string(group.title) + "\n\n`" + group.header + "`\n\n";
        for (const Declaration& each : readDeclarations(headerFile(sources, group.header))) {
            if (!isService(each)) continue;
            names.insert(each.name);
            text += described(each, serviceName(each.name));
        }
    }
    checkServices(sources, names);
    text += "## Commands of the progress dialog\n\n" + table({"Number", "Name", "Sent when"});
#define COMMAND(number, name, use) text += row({std::to_string(number), #name, use});
    ZHST_PROGRESS_COMMANDS(COMMAND)
#undef COMMAND
#define COMMAND(number, name, shortName, command, ...) \
    text += row({std::to_string(command), "", "The PC file is of type " #name ". In front of command 0."});
    ZHST_PC_FILE_TYPES(COMMAND)
#undef COMMAND
    return text;
}

std::string objectsPage(const std::string& sources) {
    std::string text = head("Objects of the emulator",
                            R"(
The first word of an object is the address of a table of plain functions; a slot is a place in it, from 0. Each
function takes the object as its first argument and is `__stdcall` on 32-bit Windows. The session services are such
a table without an object: there an entry may be null. Slots that are not listed are never called. `objects.h`)");
    const std::map<std::string, std::string> titles = {{"ZhstFileOperations", "File object"},
                                                       {"ZhstPathOperations", "Path services"},
                                                       {"ZhstCodePageOperations", "Code-page services"},
                                                       {"ZhstSessionServices", "Session services"}};
    std::string last;
    for (const Declaration& each : readDeclarations(headerFile(sources, "objects.h"))) {
        if (each.table.empty()) continue;
        if (each.table != last) text += "## " + titles.at(each.table) + "\n\n`" + each.table + "`\n\n";
        last = each.table;
        text += described(each, std::to_string(each.slot) + " " + each.name);
    }
    return text;
}

// --- Exports --------------------------------------------------------------------------------------------------------

std::map<std::string, std::string> exportOrdinals(const std::string& sources) {
    const std::string definitions = contentsOf(sources + "/src/entry/Z7XFRPCS.def");
    std::map<std::string, std::string> ordinals;
    const std::regex definition("= (\\w+)@\\d+ @(\\d+)");
    for (std::sregex_iterator each(definitions.begin(), definitions.end(), definition), end; each != end; ++each)
        ordinals[(*each)[1]] = (*each)[2];
    return ordinals;
}

std::string exportsPage(const std::string& sources) {
    const std::map<std::string, std::string> ordinals = exportOrdinals(sources);
    std::string text = head("Exports of the library",
                            "Ordinals and names are fixed. All are `__stdcall` on 32-bit Windows. `exports.h`");
    for (const Declaration& each : readDeclarations(headerFile(sources, "exports.h")))
        text += described(each, ordinals.at(each.name) + " " + each.name);
    text += "## Results of a listing\n\n" + table({"Value", "Name", "Meaning"});
#define RESULT(number, name, use) text += row({std::to_string(number), code("Catalog" #name), use});
    ZHST_CATALOG_RESULTS(RESULT)
#undef RESULT
    text += "\n## Settings that stateChangeProc acts on\n\nWhere the new value is the old one, nothing happens.\n\n" +
            table({"Setting", "Name", "A new value"});
#define WATCHED(name, effect) text += row({std::to_string(ZhstSetting##name), #name, effect});
    ZHST_WATCHED_SETTINGS(WATCHED)
#undef WATCHED
    return text;
}

// --- Messages and return codes --------------------------------------------------------------------------------------

std::string messagesPage() {
    std::string text = head("Messages and texts",
                            R"(
What the emulator's message catalogue has to hold. The sentences are those of the stand-in and an example: numbers,
places and inserts are fixed, words are the emulator's. Inserts: t a text, n a number, in the order of %1, %2, %3.

## Messages

Shown with flags 0x30, the number as help topic where the row says nothing else, and only when `IsMessageEnabled`
says so. The user's answer makes no difference.)") +
                       table({"Number", "Name", "Inserts", "Shown when, and what follows", "Sentence of the stand-in"});
#define MESSAGE(number, name, inserts, use) \
    text += row(                            \
        {std::to_string(number), #name, inserts, std::string(use), std::string(catalogue::findMessage(number).text)});
    ZHST_MESSAGES(MESSAGE)
#undef MESSAGE
    text +=
        R"(
## Texts

Fetched with `LoadMessageText`, at most 99 characters (39 for 418, 443 and 444; 79 for 432). Those with flags are
boxes: their number is what `MessageId` makes of table and index.

)" + table({"Table", "Index", "Name", "Inserts", "Flags", "Help", "Goes on with", "Use", "Sentence of the stand-in"});
#define TEXT(table, index, name, inserts, flags, help, goesOn, use)                                               \
    text += row({std::to_string(table), std::to_string(index), #name, inserts, (flags) ? hexadecimal(flags) : "", \
                 (help) ? std::to_string(help) : "", (flags) ? (goesOn) ? std::to_string(goesOn) : "any" : "",    \
                 std::string(use), std::string(catalogue::findText(table, index).text)});
    ZHST_TEXTS(TEXT)
#undef TEXT
    text +=
        R"(
## The library's own sentences

For what the catalogue has no message for: shown with `ShowMessageText`, flags 0x30, no help, when messages in
general are enabled. %s and %u are replaced.

)" + table({"Sentence", "Shown when, and what follows"});
#define SENTENCE(name, sentence, use) text += row({sentence, use});
    Z7X_OWN_SENTENCES(SENTENCE)
#undef SENTENCE
    return text;
}

// The numbers of the transports that something holds for, as a list.
template <class Condition>
std::string transportsThat(Condition condition) {
    std::string list;
    for (const provider::Transport& each : provider::Transports)
        if (condition(each)) list += (list.empty() ? "" : ", ") + std::to_string(each.number);
    return list;
}

std::string returnCodesPage() {
    std::string text = head("Return codes of a provider",
                            R"(
The low 16 bits of what a request entry gives. [provider.md](../provider.md) says what becomes of each, function by
function.

## Codes that the library acts on)") +
                       table({"Code", "Name", "What it does"});
#define CODE(code_, name, use) text += row({hexadecimal(code_), code("TF_" #name), use});
    ZHST_TF_RETURN_CODES(CODE)
#undef CODE
    text +=
        R"(
All others are errors. What the user sees of an error is, the first that applies:

1. the host's message (the data behind the error): alone behind 0x3000 and 0x3100, in a scrolling box in AS/400
mode; else message 4408 with the code, its text and the host's message;
2. where something was being done that has a text (a request, a sent record, the count, an entry of a listing):
message 4406 with that text, the code and its text;
3. with the transports )" +
        transportsThat([](const provider::Transport& each) { return each.has(provider::OwnTextAlone); }) +
        R"(, for a code below 0x0103: message 4416 with its text;
4. the sentence "File transfer not completed" with message 4416.

The code goes into the setting LastReturnCode, also that of a success; the text into LastErrorText, but behind
0x7101 and 0x9999.

The text of a code is that of its row. With transport 30 it is found by the code itself: below 0x0103 in table 22,
else in table 7, and there is none when the detail code is not 0; what was being done is not said then, either.
Nobody else looks at the detail code: it is only published in the monitor store.

## Codes of the transfer function

Texts of table 7, of at most 99 characters; the help topic is the index.

)" + table({"Code", "Name", "Said by", "Index, help", "Text of the stand-in"});
#define CODE(place, code_, name, speaker, meaning)                           \
    text += row({hexadecimal(code_), #name, #speaker, std::to_string(place), \
                 std::string(catalogue::findText(ZhstTransferTable, place).text)});
    ZHST_TRANSFER_CODES(CODE)
#undef CODE
    text +=
        R"(
## Codes of the emulator's own providers

Texts of table 22, or of table 45 with router kind 2 and another transport than 30, by the code itself. The
transports )" +
        transportsThat([](const provider::Transport& each) { return each.family != provider::Family::Ibm; }) +
        R"( have them; for the others, and for a code that no list holds, there is no text and the help topic is )" +
        std::to_string(ZhstHelpReturnCode) + ".\n\n" +
        table({"Code", "Name", "Said by", "Help", "Text of the stand-in, table 22", "Table 45"});
#define CODE(code_, help, name, speaker, meaning)                                 \
    text += row({hexadecimal(code_), #name, #speaker, std::to_string(help),       \
                 std::string(catalogue::findText(ZhstProviderTable, code_).text), \
                 std::string(catalogue::findText(ZhstRoutedProviderTable, code_).text)});
    ZHST_PROVIDER_CODES(CODE)
#undef CODE
    return text;
}

std::string libraryOf(provider::Family family) {
    switch (family) {
#define LIBRARY(family, file)      \
    case provider::Family::family: \
        return code(file);
        ZHST_PROVIDER_LIBRARIES(LIBRARY)
#undef LIBRARY
        default:
            return "";
    }
}

std::string providerCallPage(const std::string& sources) {
    std::string text = head("The call into a provider",
                            R"(
The types of its entries. All are `__stdcall` on 32-bit Windows, and exported under the plain names that their
descriptions give. `provider.h`)");
    for (const Declaration& each : readDeclarations(headerFile(sources, "provider.h")))
        text += described(each, each.name);
    text += "## Entries\n\n" + table({"Library", "Entry", "Type", ""});
#define LIBRARY(family, file) const std::string family = code(file);
    ZHST_ROUTER_LIBRARIES(LIBRARY)
    ZHST_PROVIDER_LIBRARIES(LIBRARY)
#undef LIBRARY
#define ENTRY(family, use, name, type, need) text += row({family, code(name), code(#type), #need});
    ZHST_PROVIDER_ENTRIES(ENTRY)
#undef ENTRY
    text += "\n## Functions\n\n" + table({"Code", "Name", "What is asked for"});
#define FUNCTION(number, name, use) text += row({std::to_string(number), code("TF_" #name), use});
    ZHST_TF_FUNCTIONS(FUNCTION)
#undef FUNCTION
    text += "\n## Transports\n\nWith router kind 1; with any other `AS4XFER.DLL` serves them all.\n\n" +
            table({"TransportType", "Library", "Sets RouterKind to"});
    for (const provider::Transport& each : provider::Transports)
        text += row({std::to_string(each.number), libraryOf(each.family),
                     each.settledRouter ? std::to_string(each.settledRouter) : ""});
    return text;
}

// --- Settings -------------------------------------------------------------------------------------------------------

using Values = std::map<std::string, std::string>;

void addValue(Values& values, const char* setting, std::int32_t value, std::string_view meaning) {
    std::string& text = values[setting];
    if (!text.empty()) text += "\n";
    text += code(std::to_string(value)) + " " + std::string(meaning);
}

// By setting; what a number may be where each value has a meaning of its own.
Values settingValues() {
    Values values;
#define VALUE(setting, name, value, word, meaning) addValue(values, #setting, value, word ": " meaning);
    ZHST_SETTING_VALUES(VALUE)
#undef VALUE
#define TYPE(number, name, ...)                            \
    addValue(values, "SendFileType", number, code(#name)); \
    addValue(values, "ReceiveFileType", number, code(#name));
    ZHST_PC_FILE_TYPES(TYPE)
#undef TYPE
    return values;
}

std::string kindOf(const std::string& kind, unsigned longest) {
    return kind == "Text" && longest != 0 ? "Text, " + std::to_string(longest) + " bytes" : kind;
}

std::string settingsPage() {
    const Values values = settingValues();
    std::string text = head("Settings",
                            R"(
What the library reads of the emulator's settings, and writes. A Number has 32 bits with its sign; a Choice is a
number of those listed; a Switch is 0 or 1; a Text is cut to the bytes given. Written by the User, or the emulator
for its user, by the Library, or by Both. Read Once, at the start of a transfer, so that a change does not reach the
one that runs; Live, whenever it is needed; or Never. `settings.h`)") +
                       table({"Number", "Name", "Kind", "Meaning", "Values", "Written by", "Read"});
#define SETTING(number, name, kind, longest, writer, reading, meaning)                    \
    text += row({std::to_string(number), #name, kindOf(#kind, longest), capital(meaning), \
                 values.contains(#name) ? values.at(#name) : "", #writer, #reading});
    ZHST_SETTINGS(SETTING)
#undef SETTING
    text += "\n## Types of PC files\n\n" + table({"Value", "Name", "Short", "In descriptions", "Records", "Separator",
                                                  "Double quotes around texts", "Hexadecimal digits"});
#define TYPE(number, name, shortName, command, description, form, separator, quotes, hex, ...)                   \
    text += row({std::to_string(number), code(#name), shortName, std::to_string(description), #form, #separator, \
                 #quotes, #hex});
    ZHST_PC_FILE_TYPES(TYPE)
#undef TYPE
    return text;
}

// --- The monitor ----------------------------------------------------------------------------------------------------

std::string placeRow(unsigned offset, unsigned bytes, const char* meaning) {
    return row({std::to_string(offset), bytes ? std::to_string(bytes) : "", meaning});
}

std::string monitorPage() {
    std::string text = head("The monitor store",
                            R"(
What the library publishes in the named store `ZHST`, for a monitor to follow: node `XFR4`, in it the lists `X4RP`
and `X4SP` of nine items each. Every write replaces the item's value, with the list locked; nothing is read, and
nothing of a transfer depends on it. A code is a number of four characters, the first in the most significant byte
(`XFR4` is 0x58465234). `monitor.h`)") +
                       table({"In X4RP", "In X4SP", "Name", "Value"});
#define ITEM(receive, send, name, value) \
    text += row({code(receive), code(send), *(value) ? #name : "", *(value) ? capital(value) + "." : "Never written."});
    ZHST_MONITOR_ITEMS(ITEM)
#undef ITEM
    text += "\nNumbers have their low byte first.\n\n## Request of an exchange, XUGI: 49 + n bytes\n\n" +
            table({"Offset", "Bytes", "Content"});
#define PLACE(offset, bytes, name, meaning) text += placeRow(offset, bytes, meaning);
    ZHST_MONITOR_REQUEST(PLACE)
    text +=
        R"(
## Result of an exchange, XDGI: 15 + m bytes

m is 0 behind function 5, and behind function 1 with return code 0; no result has more than 4096 bytes.

)" + table({"Offset", "Bytes", "Content"});
    ZHST_MONITOR_RESULT(PLACE)
#undef PLACE
    return text;
}

}  // namespace

std::vector<Page> makePages(const std::string& sources) {
    return {{"exports.md", exportsPage(sources)},
            {"messages.md", messagesPage()},
            {"monitor.md", monitorPage()},
            {"objects.md", objectsPage(sources)},
            {"provider_call.md", providerCallPage(sources)},
            {"return_codes.md", returnCodesPage()},
            {"services.md", servicesPage(sources)},
            {"settings.md", settingsPage()}};
}

}  // namespace reference

#include "browse.h"

#include <iostream>
#include <string_view>

#include "console.h"
#include "json.h"

namespace {

std::string_view trimmedEnd(std::string_view text) { return text.substr(0, text.find_last_not_of(" \t\r") + 1); }

// The parts of a name, which for a field is a text of several: name TAB description LF type and length.
std::string onOneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\t\n");
        if (!line.empty()) line += '\t';
        line += trimmedEnd(withoutControls(text.substr(0, end)));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return line;
}

// A text of a fixed field, which a provider may have filled to its last byte.
template <std::size_t Size>
std::string_view fieldText(const char (&field)[Size]) {
    const std::string_view all(field, Size);
    return all.substr(0, all.find('\0'));
}

void printEntry(const HostCatalogEntry& entry, const PcText& pcText, bool fields) {
    std::string line = onOneLine(pcText.toTerminal(fieldText(entry.name)));
    if (!fields) {
        const std::string description = onOneLine(pcText.toTerminal(fieldText(entry.description)));
        if (!description.empty()) line += '\t' + description;
    }
    std::cout << line << '\n';
}

// For a program: a field's entry is a text of several, name TAB description LF type and length.
std::string entryObject(const HostCatalogEntry& entry, const PcText& pcText, bool fields) {
    const std::string name = pcText.toTerminal(fieldText(entry.name));
    const std::size_t tab = fields ? name.find('\t') : std::string::npos;
    const std::size_t line = tab == std::string::npos ? tab : name.find('\n', tab);
    json::Object object;
    object.text("name", trimmedEnd(std::string_view(name).substr(0, tab)));
    if (!fields) object.text("description", trimmedEnd(pcText.toTerminal(fieldText(entry.description))));
    if (tab != std::string::npos)
        object.text("description", trimmedEnd(std::string_view(name).substr(tab + 1, line - tab - 1)));
    if (line != std::string::npos) object.text("type", trimmedEnd(std::string_view(name).substr(line + 1)));
    return object.whole();
}

}  // namespace

Tally browse(const TransferLibrary& library, const CommandLine& line, const PcText& pcText, const TerminalUser& user,
             ZhstSession session) {
    HostCatalogEntry entry{};
    entry.entryKind = line.fields ? CatalogFieldListing : 0;
    entry.fileCount = line.fileCount;
    std::uint64_t entries = 0;
    std::vector<std::string> objects;
    std::uint32_t result = library.firstHostFilename(session, pcText.toPc(line.filter).c_str(), &entry);
    while (result == CatalogEntryDelivered && !console::interrupted()) {
        if (line.json) {
            objects.push_back(entryObject(entry, pcText, line.fields));
        } else {
            printEntry(entry, pcText, line.fields);
        }
        ++entries;
        entry.name[0] = entry.description[0] = '\0';
        result = library.nextHostFilename(session, &entry);
    }
    std::cout.flush();

    const std::string amount = grouped(entries) + (entries == 1 ? " entry" : " entries");
    Tally tally{"complete: " + amount, ExitComplete};
    if (result == CatalogFailure) tally = {"failed after " + amount, ExitFailed};
    if (console::interrupted() || user.watch().isCancelled()) tally = {"cancelled after " + amount, ExitFailed};
    tally.entries = std::move(objects);
    return tally;
}

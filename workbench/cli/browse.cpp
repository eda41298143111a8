#include "browse.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>
#include <iterator>

#include "console.h"
#include "emulator/catalogue.h"
#include "implied_settings.h"
#include "json.h"
#include "json_members.h"
#include "text_table.h"

namespace {

std::string_view trimmedEnd(std::string_view text) { return text.substr(0, text.find_last_not_of(" \t\r") + 1); }

// Whatever a text holds, without the blanks that fill it.
std::string onOneLine(std::string_view text) { return withoutControls(trimmedEnd(text)); }

// A text of a fixed field, which a provider may have filled to its last byte.
template <std::size_t Size>
std::string_view fieldText(const char (&field)[Size]) {
    const std::string_view all(field, Size);
    return all.substr(0, all.find('\0'));
}

// Name and description of an entry that is no field.
void printEntry(const HostCatalogEntry& entry, const PcText& pcText) {
    std::string line = onOneLine(pcText.toTerminal(fieldText(entry.name)));
    const std::string description = onOneLine(pcText.toTerminal(fieldText(entry.description)));
    if (!description.empty()) line += '\t' + description;
    std::cout << line << '\n';
}

// For a program: an entry that is no field.
std::string entryObject(const HostCatalogEntry& entry, const PcText& pcText) {
    json::Object object;
    object.text(entry_member::Name, trimmedEnd(pcText.toTerminal(fieldText(entry.name))));
    object.text(entry_member::Description, trimmedEnd(pcText.toTerminal(fieldText(entry.description))));
    return object.whole();
}

enum class ValueKind { Text, Number };

struct FieldMember {
    std::string_view name, title;
    ValueKind kind;
};
constexpr FieldMember fieldMembers[] = {
#define FIELD_MEMBER(constant, name, title, kind, meaning) {name, title, ValueKind::kind},
    Z7X_FIELD_MEMBERS(FIELD_MEMBER)
#undef FIELD_MEMBER
};
namespace field_member {
enum Index : std::size_t {
#define FIELD_MEMBER(constant, name, title, kind, meaning) constant,
    Z7X_FIELD_MEMBERS(FIELD_MEMBER)
#undef FIELD_MEMBER
};
}  // namespace field_member
using FieldRow = std::array<std::string, std::size(fieldMembers)>;

// What stands behind a label of the emulator's, up to a blank.
std::string labelled(std::string_view text, zhst::CatalogueText label) {
    const std::string_view words = emulator::catalogue::findText(label.table, label.index).text;
    const std::size_t place = text.find(words);
    if (place == std::string_view::npos) return {};
    text.remove_prefix(place + words.size());
    return std::string(text.substr(0, text.find(' ')));
}

std::string toText(std::uint32_t number) { return std::to_string(number); }

// A field's entry is a text of several: name TAB description LF type and length.
FieldRow fieldRow(const HostCatalogEntry& entry, const PcText& pcText, const FieldLayouts& layouts) {
    const std::string text = pcText.toTerminal(fieldText(entry.name));
    const std::size_t tab = std::min(text.find('\t'), text.size()), end = std::min(text.find('\n', tab), text.size());
    const std::string_view all = text, details = all.substr(end);
    FieldRow row;
    row[field_member::Name] = onOneLine(all.substr(0, tab));
    row[field_member::Type] = labelled(details, zhst::text::TypeLabel);
    row[field_member::Length] = labelled(details, zhst::text::LengthLabel);
    row[field_member::Description] = onOneLine(all.substr(std::min(tab + 1, end), end - std::min(tab + 1, end)));
    if (const HostColumn* column = layouts.find(row[field_member::Name])) {
        if (column->isNumber()) row[field_member::Decimals] = toText(column->decimals);
        if (column->codePage != 0) row[field_member::CodePage] = toText(column->codePage);
        row[field_member::Offset] = toText(column->offset);
    }
    return row;
}

bool isNumber(std::size_t column) { return fieldMembers[column].kind == ValueKind::Number; }

void printFields(const std::vector<FieldRow>& rows) {
    if (rows.empty()) return;
    TextTable table(std::cout, false);
    for (std::size_t column = 0; column < std::size(fieldMembers); ++column) {
        const std::string title(fieldMembers[column].title);
        std::size_t width = title.size();
        for (const FieldRow& row : rows) width = std::max(width, cellWidth(row[column]));
        table.addColumn(static_cast<std::uint32_t>(column), title, static_cast<std::uint32_t>(width), isNumber(column));
    }
    for (const FieldRow& row : rows) {
        table.startRow();
        for (std::uint32_t column = 0; column < row.size(); ++column) table.setCell(column, row[column]);
        table.finishRow();
    }
    table.end();
}

// What is not known of the field is left out.
std::string fieldObject(const FieldRow& row) {
    json::Object object;
    for (std::size_t column = 0; column < row.size(); ++column) {
        if (row[column].empty()) continue;
        const std::string_view name = fieldMembers[column].name;
        isNumber(column) ? object.value(name, row[column]) : object.text(name, row[column]);
    }
    return object.whole();
}

void printForPrograms(const std::vector<FieldRow>& rows) {
    for (const FieldRow& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column)
            std::cout << (column == 0 ? "" : "\t") << row[column];
        std::cout << '\n';
    }
}

}  // namespace

FieldLayouts::FieldLayouts(const TransferLibrary& library, const CommandLine& line, const PcText& pcText,
                           ZhstSession session) {
    if (line.command != Command::Browse || !line.fields) return;
    const bool isDemonstration =
        emulator::number(session, zhst::setting::ConnectionType) == zhst::value::DemonstrationConnection;
    for (const std::string& file : hostFiles(pcText.toPc(line.filter)))
        layouts_.push_back(isDemonstration ? HostLayout() : askHostLayout(library, pcText, session, file));
}

const HostColumn* FieldLayouts::find(std::string_view name) const {
    if (layouts_.size() < 2) return layouts_.empty() ? nullptr : layouts_.front().find(name);
    const std::size_t point = name.find('.');
    std::size_t file = 0;
    if (point == std::string_view::npos || name.empty()) return nullptr;
    std::from_chars(name.data() + 1, name.data() + point, file);
    return file >= 1 && file <= layouts_.size() ? layouts_[file - 1].find(name.substr(point + 1)) : nullptr;
}

Tally browse(const TransferLibrary& library, const CommandLine& line, const PcText& pcText, const TerminalUser& user,
             ZhstSession session, const FieldLayouts& layouts) {
    HostCatalogEntry entry{};
    entry.entryKind = line.fields ? CatalogFieldListing : 0;
    entry.fileCount = std::max(layouts.fileCount(), 1);
    std::vector<FieldRow> rows;
    std::uint64_t entries = 0;
    std::vector<std::string> objects;
    std::uint32_t result = library.firstHostFilename(session, pcText.toPc(line.filter).c_str(), &entry);
    while (result == CatalogEntryDelivered && !console::interrupted()) {
        if (line.fields)
            rows.push_back(fieldRow(entry, pcText, layouts));
        else if (line.json)
            objects.push_back(entryObject(entry, pcText));
        else
            printEntry(entry, pcText);
        ++entries;
        entry.name[0] = entry.description[0] = '\0';
        result = library.nextHostFilename(session, &entry);
    }
    if (line.json)
        for (const FieldRow& row : rows) objects.push_back(fieldObject(row));
    else
        console::isTerminal(console::Stream::Output) ? printFields(rows) : printForPrograms(rows);
    std::cout.flush();

    const std::string amount = grouped(entries) + (entries == 1 ? " entry" : " entries");
    Tally tally{"complete: " + amount, ExitComplete};
    if (result == CatalogFailure) tally = {"failed after " + amount, user.watch().failure()};
    if (console::interrupted() || user.watch().isCancelled()) tally = {"cancelled after " + amount, ExitCancelled};
    tally.entries = std::move(objects);
    return tally;
}

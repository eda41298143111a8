#include "as400/listing.h"

#include <algorithm>

#include "as400/file_list.h"
#include "as400/host_text.h"
#include "as400/lookup.h"
#include "as400/query_text.h"
#include "as400/refusal.h"

namespace as400 {

namespace {

constexpr std::string_view Tables = "EXTRACT TABLES", Columns = "EXTRACT COLUMNS";

// A name part and a description part. The PC tells them apart by the length of the record.
struct EntryLayout {
    std::size_t name, record;
};
constexpr EntryLayout EntryLayouts[] = {{10, 60}, {21, 75}, {33, 83}, {44, 96}};
constexpr std::size_t LibraryName = 10, FileName = 21, MemberName = 33;

struct FieldLayout {
    std::size_t name, type, length, text, record;
};
constexpr FieldLayout OneFile{10, 10, 15, 21, 71};
constexpr FieldLayout SeveralFiles{13, 13, 19, 25, 75};
constexpr std::size_t TypeLength = 5, TextLength = 50;

std::string_view trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool matches(std::string_view name, std::string_view pattern) {
    if (pattern.ends_with('*')) {
        pattern.remove_suffix(1);
        name = name.substr(0, pattern.size());
    }
    return sameName(name, pattern);
}

std::string_view shortTypeName(FieldType type) {
    return type == FieldType::Packed ? "PACKD" : type == FieldType::Binary ? "BIN" : typeName(type);
}

// Digits of zoned and packed numbers, bytes of everything else.
std::uint32_t shownLength(const Field& field) { return field.type == FieldType::Packed ? field.digits : field.length; }

}  // namespace

Listing::Listing(Catalogue& catalogue, std::string_view request, const codepages::CodePage& page, bool typeInAscii)
    : catalogue_(catalogue), page_(page), typeInAscii_(typeInAscii) {
    if (sameName(request.substr(0, Tables.size()), Tables)) {
        listTables(trimmed(request.substr(Tables.size())));
    } else if (sameName(request.substr(0, Columns.size()), Columns)) {
        listColumns(request.substr(Columns.size()));
    } else {
        refuseRequest("HSF1004 Request not recognised.");
    }
}

void Listing::listTables(std::string_view filter) {
    const auto slash = filter.find('/');
    if (slash == std::string_view::npos) return listLibraries(filter.empty() ? "*" : filter);
    const std::string_view library = filter.substr(0, slash);
    const std::string_view file = filter.substr(slash + 1, filter.find('(') - slash - 1);
    if (!catalogue_.library(library)) refuseRequest("HSF1010 Library " + upperCase(library) + " not found.");
    if (file.empty() || file.ends_with('*')) return listFiles(library, file.empty() ? "*" : file);
    listMembers(library, file);
}

void Listing::listLibraries(std::string_view pattern) {
    for (const HostLibrary& library : catalogue_.libraries()) {
        if (matches(library.name, pattern)) addEntry(library.name, library.text, LibraryName);
    }
}

void Listing::listFiles(std::string_view library, std::string_view pattern) {
    for (const HostFile& file : catalogue_.files(library)) {
        if (matches(file.name, pattern)) addEntry(file.label(), file.text, FileName);
    }
}

void Listing::listMembers(std::string_view library, std::string_view name) {
    const HostFile file = requireFile(catalogue_, {std::string(library), std::string(name), ""});
    for (const HostMember& member : catalogue_.members(file)) {
        addEntry(file.label() + "(" + member.name + ")", member.text, MemberName);
    }
}

void Listing::listColumns(std::string_view filter) {
    const std::vector<FileReference> files = takeFileList(filter);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const HostFile file = requireFile(catalogue_, files[i]);
        const std::string qualifier = files.size() > 1 ? aliasOf(i) + "." : "";
        for (const Field& field : offeredFields(file)) addField(field, qualifier, shortTypeName(field.type));
    }
}

// The layout is that of the kind of entry; a name too long for it (of a plain table) takes the next one that holds it.
void Listing::addEntry(std::string_view name, std::string_view text, std::size_t leastNameLength) {
    const std::size_t needed = std::max(leastNameLength, name.size());
    const auto* layout = std::ranges::find_if(EntryLayouts, [&](const auto& each) { return each.name >= needed; });
    if (layout == std::end(EntryLayouts)) --layout;
    Bytes record(layout->record);
    put(record, 0, layout->name, name);
    put(record, layout->name, layout->record - layout->name, text);
    records_.push_back(std::move(record));
}

void Listing::addField(const Field& field, std::string_view qualifier, std::string_view type) {
    const FieldLayout& layout = qualifier.empty() ? OneFile : SeveralFiles;
    Bytes record(layout.record, 0x40);
    put(record, 0, layout.name, std::string(qualifier) + field.name);
    put(record, layout.type, TypeLength, type);
    if (typeInAscii_) {
        std::fill_n(record.begin() + static_cast<std::ptrdiff_t>(layout.type), TypeLength, std::uint8_t{' '});
        std::ranges::copy(type, record.begin() + static_cast<std::ptrdiff_t>(layout.type));
    }
    record[layout.length] = static_cast<std::uint8_t>(shownLength(field) >> 8);
    record[layout.length + 1] = static_cast<std::uint8_t>(shownLength(field));
    put(record, layout.text, TextLength, field.text);
    records_.push_back(std::move(record));
}

void Listing::put(Bytes& record, std::size_t at, std::size_t length, std::string_view utf8) const {
    encodeText(utf8, FieldType::Character, page_, std::span(record).subspan(at, length));
}

}  // namespace as400

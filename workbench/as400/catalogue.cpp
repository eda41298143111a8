#include "as400/catalogue.h"

#include <algorithm>

#include "as400/decimal.h"
#include "as400/host_text.h"
#include "as400/refusal.h"
#include "as400/survey.h"

namespace as400 {

namespace {

constexpr const char* CatalogueTables = R"(
CREATE TABLE IF NOT EXISTS host_library(name TEXT PRIMARY KEY, text TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS host_file(id INTEGER PRIMARY KEY, library TEXT NOT NULL REFERENCES host_library(name),
    name TEXT NOT NULL, text TEXT NOT NULL, page INTEGER NOT NULL, source_length INTEGER NOT NULL,
    UNIQUE(library, name));
CREATE TABLE IF NOT EXISTS host_field(file INTEGER NOT NULL REFERENCES host_file(id), position INTEGER NOT NULL,
    name TEXT NOT NULL, type TEXT NOT NULL, size INTEGER NOT NULL, decimals INTEGER NOT NULL, text TEXT NOT NULL,
    PRIMARY KEY(file, position));
CREATE TABLE IF NOT EXISTS host_member(id INTEGER PRIMARY KEY, file INTEGER NOT NULL REFERENCES host_file(id),
    name TEXT NOT NULL, text TEXT NOT NULL, data TEXT NOT NULL UNIQUE, UNIQUE(file, name));
)";

constexpr const char* PlainTables = R"(
SELECT name FROM sqlite_master WHERE type IN ('table', 'view') AND name NOT LIKE 'sqlite\_%' ESCAPE '\'
    AND name NOT IN ('host_library', 'host_file', 'host_field', 'host_member'))";

constexpr const char* FileColumns = "SELECT id, library, name, text, page, source_length FROM host_file ";

HostFile fileOf(const Statement& row) {
    HostFile file;
    file.id = row.integer(0);
    file.library = row.text(1);
    file.name = row.text(2);
    file.text = row.text(3);
    file.page = static_cast<std::uint32_t>(row.integer(4));
    file.sourceLength = static_cast<std::uint32_t>(row.integer(5));
    return file;
}

std::int64_t sizeOf(const Field& field) {
    const bool digits = field.type == FieldType::Packed || field.type == FieldType::Zoned;
    return digits ? field.digits : field.length;
}

// Numbers with decimals are kept as floating point values, so that a division in a query is not one of integers.
// Character fields compare as on the host, where blanks at the end do not count.
// The defaults are for a record that came without the field.
std::string columnType(const Field& field) {
    if (field.isNumber()) {
        if (storedAsText(field.digits, field.decimals)) return "BLOB DEFAULT '0'";
        return field.decimals > 0 ? "REAL DEFAULT 0" : "INTEGER DEFAULT 0";
    }
    if (field.type == FieldType::Hex) return "BLOB";
    const bool moment = field.type == FieldType::Date || field.type == FieldType::Time;
    return moment ? "TEXT" : "TEXT COLLATE RTRIM DEFAULT ''";
}

bool searchesAll(std::string_view library) { return library.empty() || library == "*LIBL" || library == "*CURLIB"; }

}  // namespace

bool Catalogue::hasTables() { return database_.hasTable("host_library"); }

void Catalogue::createTables() { database_.execute(CatalogueTables); }

std::vector<HostLibrary> Catalogue::libraries() {
    std::vector<HostLibrary> result;
    if (hasTables()) {
        Statement rows(database_, "SELECT name, text FROM host_library ORDER BY rowid");
        while (rows.step()) result.push_back({rows.text(0), rows.text(1)});
    }
    if (!files(UserLibrary).empty()) result.push_back({std::string(UserLibrary), "Plain tables of this database"});
    return result;
}

std::optional<HostLibrary> Catalogue::library(std::string_view name) {
    for (HostLibrary& library : libraries()) {
        if (sameName(library.name, name)) return std::move(library);
    }
    return std::nullopt;
}

std::vector<HostFile> Catalogue::files(std::string_view library) {
    std::vector<HostFile> result;
    if (!sameName(library, UserLibrary)) {
        if (!hasTables()) return result;
        Statement rows(database_, std::string(FileColumns) + "WHERE library = ? ORDER BY name");
        rows.bind(1, upperCase(library));
        while (rows.step()) result.push_back(fileOf(rows));
        return result;
    }
    std::string sql = PlainTables;
    if (hasTables()) sql += " AND name NOT IN (SELECT data FROM host_member)";
    Statement rows(database_, sql + " ORDER BY name");
    while (rows.step()) {
        HostFile file;
        file.library = UserLibrary;
        file.name = upperCase(rows.text(0));
        file.text = "Table " + rows.text(0);
        file.page = plainPage_;
        result.push_back(std::move(file));
    }
    return result;
}

std::optional<HostFile> Catalogue::file(std::string_view library, std::string_view name) {
    if (searchesAll(library)) {
        for (const HostLibrary& each : libraries()) {
            if (auto found = file(each.name, name)) return found;
        }
        return std::nullopt;
    }
    if (sameName(library, UserLibrary)) return plainFile(name);
    if (!hasTables()) return std::nullopt;
    Statement row(database_, std::string(FileColumns) + "WHERE library = ? AND name = ?");
    row.bind(1, upperCase(library)).bind(2, upperCase(name));
    if (!row.step()) return std::nullopt;
    HostFile result = fileOf(row);
    result.fields = storedFields(result.id);
    return result;
}

std::optional<HostFile> Catalogue::plainFile(std::string_view name) {
    for (HostFile& file : files(UserLibrary)) {
        if (!sameName(file.name, name)) continue;
        file.fields = surveyedFields(file.name);
        return std::move(file);
    }
    return std::nullopt;
}

std::vector<Field> Catalogue::storedFields(std::int64_t file) {
    std::vector<Field> fields;
    Statement rows(database_,
                   "SELECT name, type, size, decimals, text FROM host_field WHERE file = ? ORDER BY position");
    rows.bind(1, file);
    while (rows.step()) {
        fields.push_back(makeField(rows.text(0), rows.text(1), static_cast<std::uint32_t>(rows.integer(2)),
                                   static_cast<std::uint32_t>(rows.integer(3)), rows.text(4)));
    }
    return fields;
}

std::vector<Field> Catalogue::surveyedFields(std::string_view table) {
    const codepages::CodePage& page = hostPage(plainPage_);
    Statement rows(database_, "SELECT * FROM " + quotedName(table));
    std::vector<Survey> surveys(static_cast<std::size_t>(rows.columnCount()));
    while (rows.step()) {
        for (std::size_t i = 0; i < surveys.size(); ++i) surveys[i].add(rows.value(static_cast<int>(i)), page);
    }
    std::vector<Field> fields;
    for (std::size_t i = 0; i < surveys.size(); ++i) {
        const char* declared = sqlite3_column_decltype(rows.handle(), static_cast<int>(i));
        const char* name = sqlite3_column_name(rows.handle(), static_cast<int>(i));
        fields.push_back(surveys[i].deduce(name, declared ? declared : ""));
    }
    return fields;
}

std::vector<HostMember> Catalogue::members(const HostFile& file) {
    if (file.isPlain()) return {{file.name, file.text, file.name}};
    std::vector<HostMember> result;
    Statement rows(database_, "SELECT name, text, data FROM host_member WHERE file = ? ORDER BY id");
    rows.bind(1, file.id);
    while (rows.step()) result.push_back({rows.text(0), rows.text(1), rows.text(2)});
    return result;
}

std::optional<HostMember> Catalogue::member(const HostFile& file, std::string_view name) {
    for (HostMember& member : members(file)) {
        if (name.empty() || sameName(name, "*FIRST") || sameName(member.name, name)) return std::move(member);
    }
    return std::nullopt;
}

std::optional<HostFile> Catalogue::fileWithFields(std::string_view name, const std::vector<std::string>& fields) {
    for (const HostLibrary& library : libraries()) {
        auto candidate = file(library.name, name);
        if (!candidate) continue;
        const auto has = [&](const std::string& field) { return findField(candidate->fields, field) != nullptr; };
        if (std::ranges::all_of(fields, has)) return candidate;
    }
    return std::nullopt;
}

void Catalogue::createLibrary(const HostLibrary& library) {
    createTables();
    Statement insert(database_, "INSERT INTO host_library VALUES(?, ?)");
    insert.bind(1, library.name).bind(2, library.text).step();
}

void Catalogue::createFile(HostFile& file) {
    Statement insert(database_, "INSERT INTO host_file VALUES(NULL, ?, ?, ?, ?, ?)");
    insert.bind(1, file.library).bind(2, file.name).bind(3, file.text);
    insert.bind(4, std::int64_t{file.page}).bind(5, std::int64_t{file.sourceLength}).step();
    file.id = sqlite3_last_insert_rowid(database_.handle());
    Statement addField(database_, "INSERT INTO host_field VALUES(?, ?, ?, ?, ?, ?, ?)");
    std::int64_t position = 0;
    for (const Field& field : file.fields) {
        addField.reset();
        addField.bind(1, file.id).bind(2, position++).bind(3, field.name);
        addField.bind(4, std::string(typeName(field.type))).bind(5, sizeOf(field));
        addField.bind(6, std::int64_t{field.decimals}).bind(7, field.text).step();
    }
}

HostMember Catalogue::createMember(const HostFile& file, std::string_view name, std::string_view text) {
    const HostMember member{upperCase(name), std::string(text), file.label() + "(" + upperCase(name) + ")"};
    std::string columns;
    for (const Field& field : file.fields) {
        columns += (columns.empty() ? "" : ", ") + quotedName(field.column) + " " + columnType(field);
    }
    database_.execute("CREATE TABLE " + quotedName(member.table) + "(" + columns + ")");
    Statement insert(database_, "INSERT INTO host_member VALUES(NULL, ?, ?, ?, ?)");
    insert.bind(1, file.id).bind(2, member.name).bind(3, member.text).bind(4, member.table).step();
    return member;
}

std::vector<Field> sourceFields(std::uint32_t recordLength) {
    return {makeField("SRCSEQ", "ZONED", 6, 2, "Sequence number"), makeField("SRCDAT", "ZONED", 6, 0, "Date of change"),
            makeField("SRCDTA", "CHAR", recordLength - SourceOverhead, 0, "Source text")};
}

std::vector<Field> offeredFields(const HostFile& file) {
    if (!file.isSource()) return file.fields;
    const Field* text = findField(file.fields, "SRCDTA");
    return text ? std::vector<Field>{*text} : file.fields;
}

}  // namespace as400

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "as400/database.h"
#include "as400/field.h"

// Libraries, files and members of a database. A member is a table of its own; four tables (host_library, host_file,
// host_field, host_member) say which. A database without them is as good: every other table or view is offered as a
// file of the library USER, with one member of the same name and fields deduced by a survey.
namespace as400 {

struct HostLibrary {
    std::string name, text;
};

struct HostFile {
    std::int64_t id = 0;  // 0: a plain table
    std::string library, name, text;
    std::uint32_t page = 37;
    std::uint32_t sourceLength = 0;  // record length of a source file, 0 for data
    std::vector<Field> fields;

    bool isPlain() const { return id == 0; }
    bool isSource() const { return sourceLength != 0; }
    std::string label() const { return library + "/" + name; }
};

struct HostMember {
    std::string name, text;
    std::string table;  // of the database
};

inline constexpr std::string_view UserLibrary = "USER";
inline constexpr std::string_view DefaultLibrary = "QGPL";  // of a file created without one
inline constexpr std::uint32_t SourceOverhead = 12;         // sequence number and date before the source text

class Catalogue {
public:
    // plainPage: host code page of plain tables.
    Catalogue(Database& database, std::uint32_t plainPage) : database_(database), plainPage_(plainPage) {}

    std::vector<HostLibrary> libraries();
    std::optional<HostLibrary> library(std::string_view name);
    std::vector<HostFile> files(std::string_view library);  // without their fields
    // An empty library name, or *LIBL or *CURLIB, searches all libraries in their order.
    std::optional<HostFile> file(std::string_view library, std::string_view name);
    std::vector<HostMember> members(const HostFile& file);
    // The first member for an empty name or *FIRST.
    std::optional<HostMember> member(const HostFile& file, std::string_view name);
    // The first file of this name that has all these fields, in any library.
    std::optional<HostFile> fileWithFields(std::string_view name, const std::vector<std::string>& fields);

    void createLibrary(const HostLibrary& library);
    void createFile(HostFile& file);  // sets its id
    HostMember createMember(const HostFile& file, std::string_view name, std::string_view text);

private:
    bool hasTables();
    void createTables();
    std::vector<Field> storedFields(std::int64_t file);
    std::optional<HostFile> plainFile(std::string_view name);
    std::vector<Field> surveyedFields(std::string_view table);

    Database& database_;
    std::uint32_t plainPage_;
};

// The fields of a source file as the host keeps them: sequence number, change date, text.
std::vector<Field> sourceFields(std::uint32_t recordLength);
// What the PC sees of a file when it names no fields: all of them, of a source file only the text.
std::vector<Field> offeredFields(const HostFile& file);

}  // namespace as400

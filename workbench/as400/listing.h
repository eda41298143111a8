#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "as400/catalogue.h"

namespace codepages {
class CodePage;
}

// An accepted EXTRACT request: what the catalogue says of libraries, files, members or fields.
//
//   EXTRACT TABLES              all libraries
//   EXTRACT TABLES LIB          the libraries of that name; a name that ends with * is the beginning of a name
//   EXTRACT TABLES LIB/         the files of the library; LIB/NAM* those that begin so
//   EXTRACT TABLES LIB/FILE(    the members of the file; the parenthesis may be missing
//   EXTRACT COLUMNS LIB/FILE    the fields of the file; of several files, separated by commas or blanks, with t1., t2.
//   ...
//                               before the names
namespace as400 {

class Listing {
public:
    // Field types stand in records as host text, or as the PC's with typeInAscii; everything else is host text.
    // Throws a Refusal for a library or file that does not exist.
    Listing(Catalogue& catalogue, std::string_view request, const codepages::CodePage& page, bool typeInAscii);

    bool isEmpty() const { return records_.empty(); }
    const Bytes* next() { return position_ < records_.size() ? &records_[position_++] : nullptr; }

private:
    void listTables(std::string_view filter);
    void listLibraries(std::string_view pattern);
    void listFiles(std::string_view library, std::string_view pattern);
    void listMembers(std::string_view library, std::string_view name);
    void listColumns(std::string_view filter);
    void addEntry(std::string_view name, std::string_view text, std::size_t leastNameLength);
    void addField(const Field& field, std::string_view qualifier, std::string_view type);
    void put(Bytes& record, std::size_t at, std::size_t length, std::string_view utf8) const;

    Catalogue& catalogue_;
    const codepages::CodePage& page_;
    bool typeInAscii_;
    std::vector<Bytes> records_;
    std::size_t position_ = 0;
};

}  // namespace as400

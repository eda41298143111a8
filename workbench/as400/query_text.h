#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "as400/file_list.h"

// From the request language to SQLite's. Only the file list and the qualifiers are translated; the rest is SQLite's to
// understand or refuse.
namespace as400 {

// How a request says which of several files a field is of.
enum class Qualifiers {
    Positions,  // t1. or T1. for the first file; file names as well
    FileNames,  // CUST.
};

struct QueryText {
    std::string columns;  // "*" or a list, as written
    std::vector<FileReference> files;
    std::string rest;  // " where ... order by ...", without FOR FETCH ONLY
};

// Takes "SELECT columns FROM files rest" apart. Throws a Refusal when it is not one.
QueryText splitQuery(std::string_view request);

// Replaces every qualifier in `text` by the alias of its file, "t" and its position in the list, and quotes names with
// characters that SQLite does not know in a name. Quoted texts stay as they are.
std::string withAliases(std::string_view text, const std::vector<FileReference>& files, Qualifiers qualifiers);

std::string aliasOf(std::size_t index);  // 0 gives t1

}  // namespace as400

#pragma once

#include <string>
#include <string_view>
#include <vector>

// The host files of a request: "LIB/FILE(MBR),LIB/FILE2 FILE3", separated by commas, blanks or both.
namespace as400 {

struct FileReference {
    std::string library, file, member;  // library and member empty when not given; names as written
};

// One reference at the start of `text`, which loses it. A name in double quotes may hold any character. Throws a
// Refusal where there is none.
FileReference takeFileReference(std::string_view& text);

// All references up to the end or to a word that begins the next part of a query (where, group by, having, order by,
// for fetch); `text` keeps what follows. Throws a Refusal when the list is empty.
std::vector<FileReference> takeFileList(std::string_view& text);

}  // namespace as400

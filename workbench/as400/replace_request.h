#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "as400/file_list.h"

// REPLACE fields into LIB/FILE(MBR) options
namespace as400 {

struct ReplaceRequest {
    std::vector<std::string> fields;  // empty for "*"
    FileReference target;
    bool createFile = false;
    bool createMember = false;
    bool source = false;
    std::optional<std::uint32_t> recordLength;  // of a new source file, with the 12 bytes before the text
    std::string referenceFile;
    std::string authority;  // noted; this host has one user, who may do everything
    std::string fileText, memberText;
};

// The texts stand in apostrophes, and an apostrophe inside is not doubled: the file text ends where CRTMBR(YES)
// follows, the member text at the end of the request. Throws a Refusal.
ReplaceRequest parseReplace(std::string_view text);

}  // namespace as400

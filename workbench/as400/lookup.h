#pragma once

#include <string_view>

#include "as400/catalogue.h"
#include "as400/file_list.h"

// What a request names, or a Refusal that says what is missing.
namespace as400 {

HostFile requireFile(Catalogue& catalogue, const FileReference& reference);
// The first member for an empty name.
HostMember requireMember(Catalogue& catalogue, const HostFile& file, std::string_view name);

}  // namespace as400

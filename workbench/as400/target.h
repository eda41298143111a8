#pragma once

#include <cstdint>
#include <string>

#include "as400/catalogue.h"
#include "as400/replace_request.h"

// The file and member that a REPLACE request writes to, found or created.
namespace as400 {

struct Target {
    HostFile file;
    HostMember member;
    std::string notice;  // IWS2036 (the file exists) or IWS2023 (the member exists) with its text; empty for a new one
};

// What a request says of the kind of target:
//   CRTFILE(YES)               file and member are created where they are missing
//   CRTFILE(NO) CRTMBR(YES)    the member is created where it is missing
//   neither                    both must exist
// A new file has the fields of its reference file; without one, the named fields of a file of the same name in any
// library; without that, character fields of 50 bytes. A new source file has the three fields of every source file.
// Throws a Refusal.
Target openTarget(Catalogue& catalogue, const ReplaceRequest& request, std::uint32_t newFilePage);

}  // namespace as400

#pragma once

#include <cstdint>
#include <string>

#include "as400/catalogue.h"
#include "as400/replace_request.h"

// The file and member that a REPLACE request writes to, found or created.
namespace as400 {

struct Target {
    enum Age { New, Existing };
    HostFile file;
    HostMember member;
    Age age = New;  // of the member
};

// What a request says of the kind of target:
//   CRTFILE(YES)               file and member are created; a file that exists is refused
//   CRTFILE(NO) CRTMBR(YES)    the member is created; one that exists is refused
//   neither                    both must exist
// A new file has the fields of its reference file; without one, the named fields of a file of the same name in any
// library; without that, character fields of 50 bytes. A new source file has the three fields of every source file.
// Throws a Refusal.
Target openTarget(Catalogue& catalogue, const ReplaceRequest& request, std::uint32_t newFilePage);

}  // namespace as400

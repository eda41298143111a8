#pragma once

#include <string>
#include <vector>

#include "host_layout.h"

namespace checking {

// The layout that the records of a send will have.
struct Target {
    HostLayout layout;
    std::vector<std::string> unknownFields;  // that the request names and the host file does not have
};

// `options` and `request` are those of the send, in the PC's code page; the other settings are those of `session`. A
// file that is there is asked of the host. A new one takes the fields of its reference file; without one those of a
// file of its name that the host finds, if that has them all, and else texts of 50 bytes, as the sample host makes
// them. To be called without a client, as askHostLayout.
Target targetLayout(const TransferLibrary& library, const PcText& pcText, ZhstSession session,
                    const std::string& options, const std::string& request);

}  // namespace checking

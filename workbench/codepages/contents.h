#pragma once

#include <cstddef>
#include <string>

namespace codepages {

// What the data file that was loaded holds.
struct Contents {
    std::size_t hostPages = 0, pcPages = 0;
    std::string origin;  // what they were made from, as "ICU 72.1"
};
Contents contents();

}  // namespace codepages

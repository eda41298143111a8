#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "page_data.h"

namespace codepages {

// First bytes of pairs on the PC, both ends included.
struct LeadRange {
    std::uint8_t from, to;
};

// A byte that Windows reads otherwise than ICU. What ICU reads it as is still written as this byte.
struct Correction {
    std::uint8_t byte;
    char16_t character;
};

PageData buildHostPage(std::uint32_t number, const std::string& icuName);
PageData buildPcPage(std::uint32_t number, const std::string& icuName, const std::vector<LeadRange>& leads,
                     const std::vector<Correction>& corrections);

}  // namespace codepages

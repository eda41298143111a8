#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "checking/pc_file_form.h"

namespace checking {

// What keeps records that were added to a PC file (--append) from being read as records of their own: what stands in
// front of their `offset` ends within a record. For people; empty when nothing does, or the file cannot be read.
// `recordBytes` is the length of records without line ends.
std::string joinedWithWhatWasThere(const std::filesystem::path& path, const PcFileForm& form, std::uint32_t recordBytes,
                                   std::uint64_t offset);

}  // namespace checking

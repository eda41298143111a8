#pragma once

#include <cstdint>

#include "record/host_layout.h"
#include "services/objects.h"

namespace receive {

// Writes the DIF header (as many vectors as fields, one tuple more than records are expected) and the tuple of the
// column names. False when there are no fields, a name does not fit, or a write failed, which the file has reported.
bool writeDifHeader(const record::HostLayout& layout, std::int32_t expectedCount, services::FileObject& file);

}  // namespace receive

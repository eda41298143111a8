#pragma once

#include "record/record_converter.h"
#include "services/objects.h"

namespace record::to_pc {

// Writes the DIF header (as many vectors as fields, one tuple more than records are expected) and the tuple of the
// column names. False when there are no fields, a name does not fit, or a write failed, which the file has reported.
bool writeDifHeader(const RecordConverter& converter, services::FileObject& file);

}  // namespace record::to_pc

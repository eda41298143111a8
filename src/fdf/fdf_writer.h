#pragma once

#include "record/record_converter.h"

namespace fdf {

// Writes the PC file description of a transfer from the host, with the fields of the converter. Reports nothing: a file
// that cannot be created is not written, and one that cannot be written on stays as far as it got.
void writeFdf(const record::RecordConverter& converter, const char* pcFileName);

}  // namespace fdf

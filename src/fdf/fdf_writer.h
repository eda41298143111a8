#pragma once

#include "client/transfer_context.h"
#include "record/host_layout.h"

namespace fdf {

// Writes the PC file description of a transfer from the host, with the fields of the layout. Reports nothing: a file
// that cannot be created is not written, and one that cannot be written on stays as far as it got.
void writeFdf(const client::TransferContext& context, const record::HostLayout& layout, const char* pcFileName);

}  // namespace fdf

#pragma once

#include <cstdint>

#include "client/transfer_context.h"
#include "services/owned_file.h"

namespace fdf {

inline constexpr std::uint32_t PathSize = 261;

// Derives the path of a PC file description: a name with a directory or drive of its own stands as it is; otherwise it
// goes beside the PC file, "*.EXT" (at most three characters) taking that file's name. Gives a new file object for that
// path, not yet opened and without an existing-file action; none, after a message, when it cannot be created or the
// path does not fit.
services::OwnedFile resolveFdfPath(const client::TransferContext& context, const char* pcFileName, const char* fdfName,
                                   char (&path)[PathSize]);

}  // namespace fdf

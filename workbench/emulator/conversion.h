#pragma once

#include <cstdint>

#include "Z7XFRPCS/objects.h"
#include "emulator/sessions.h"

namespace emulator {

// The session's single-byte tables; null when its host page or the PC page is not in the data.
const ConversionTables* conversionTables(Session& session);

// The code-page services (kind 7).
extern const ZhstCodePageOperations codePageOperations;

}  // namespace emulator

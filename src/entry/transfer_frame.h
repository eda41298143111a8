#pragma once

#include <cstdint>

#include "client/client_object.h"
#include "services/direction.h"

namespace entry {

// Runs one whole transfer: an optional settings file, the connection check, the start of the session, the snapshot, the
// PC file object, the driver of the direction, and the teardown in its fixed order. A transfer that comes in while one
// of the same client runs is turned away.
void transferFile(ZXFRPCSCLIENT& client, const char* settingsFile, services::Direction direction,
                  std::uint32_t showProgress, services::WindowHandle ownerWindow);

}  // namespace entry

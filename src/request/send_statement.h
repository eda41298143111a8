#pragma once

#include "client/client_object.h"

namespace request {

// Composes the REPLACE statement of a transfer to the host into requestText: the fields of the PC file description ("*"
// for a source file), the host file, and how the host is to create what does not exist. Reading the description
// replaces the snapshot's file type and options. An option that does not fit is left out. False after a reported
// failure.
bool composeSendStatement(ZXFRPCSCLIENT& client);

}  // namespace request

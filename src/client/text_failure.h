#pragma once

#include "client/client_object.h"

namespace client {

// Tells that a text could not be converted between the code pages: for want of memory for the code tables, of the text
// services of page 43, or because the emulator's converter refused it.
void tellTextNotConverted(const ZXFRPCSCLIENT& client);

}  // namespace client

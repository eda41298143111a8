#pragma once

#include "client/client_object.h"

namespace receive {

// The whole of a transfer from the host, between the transfer driver's preparation and its teardown. Every failure has
// been reported when it returns; records already written stay in the file.
void receiveFromHost(ZXFRPCSCLIENT& client);

}  // namespace receive

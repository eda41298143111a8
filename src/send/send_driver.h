#pragma once

#include "client/client_object.h"

namespace send {

// The whole of a transfer to the host, between the transfer driver's preparation and its teardown. Every failure has
// been reported when it returns; records already sent stay with the host.
void sendToHost(ZXFRPCSCLIENT& client);

}  // namespace send

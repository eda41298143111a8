#pragma once

#include "client/client_object.h"
#include "services/direction.h"

namespace client {

// The transfer of a demonstration connection, which has no host: from the host to the screen it pages through a sample
// table; everything else shows a progress of five steps. The driver has made the displays; nothing happens without the
// one that is needed.
void runDemonstration(ZXFRPCSCLIENT& client, services::Direction direction);

}  // namespace client

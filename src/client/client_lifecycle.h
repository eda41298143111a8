#pragma once

#include "client/client_object.h"

namespace client {

// Makes a client and registers it and its clean-up with the session; null when there is no memory for it. A client
// whose parts found no memory is still returned: its transfer-function session is made again on demand.
ZXFRPCSCLIENT* createClient(services::SessionHandle session);

// Ends what createClient made; null is ignored.
void destroyClient(ZXFRPCSCLIENT* client);

// The registered client of a session: the latest one made for a session other than the one registered before. Null for
// every other session.
ZXFRPCSCLIENT* findClient(services::SessionHandle session);

}  // namespace client

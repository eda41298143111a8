#pragma once

#include "client/client_object.h"
#include "record/host_layout.h"
#include "services/direction.h"

namespace request {

// Fetches the host's descriptions of the fields of a request into `layout`, with the progress dialog showing that it
// does. True when there is at least one. The list ends where a description or memory for it fails, which has been
// reported; `last` is the answer it ended with, NoMoreData when it is whole.
bool readHostFields(ZXFRPCSCLIENT& client, record::HostLayout& layout, services::Direction direction,
                    provider::TfResult& last);

}  // namespace request

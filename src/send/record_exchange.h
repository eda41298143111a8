#pragma once

#include <cstdint>
#include <string_view>

#include "client/client_object.h"
#include "request/statement_exchange.h"

namespace send {

// Fills the shared buffer with `fill` and puts the record at its start. False, reported, when the session, stopped in
// the meantime, is no more.
bool placeRecord(ZXFRPCSCLIENT& client, std::string_view record, char fill);

// Sends the host record at the start of the shared buffer and judges the answer.
bool putRecord(ZXFRPCSCLIENT& client, std::uint32_t hostLength, request::Context context);

}  // namespace send

#pragma once

#include <cstdint>
#include <string_view>

#include "client/client_object.h"

namespace request {

// Writes "SELECT ", the select list ("* " when there is none) and the request text into the shared buffer; `statement`
// is that text. False, reported, when it does not fit.
bool composeSelectStatement(ZXFRPCSCLIENT& client, std::string_view& statement);

// Asks the host how many records the request text selects. -1 after a reported failure.
std::int32_t queryRecordCount(ZXFRPCSCLIENT& client);

}  // namespace request

#pragma once

#include <cstdint>
#include <string_view>

#include "client/client_object.h"

namespace request {

// Writes "SELECT ", the select list ("* " when there is none) and the request text into the shared buffer; `statement`
// is that text. False, reported, when it does not fit.
bool composeSelectStatement(ZXFRPCSCLIENT& client, std::string_view& statement);

// Answers of queryRecordCount that are no number of records. A host that answers -1 ends the transfer like a failure.
inline constexpr std::int32_t CountFailed = -1;
inline constexpr std::int32_t CountUnknown = -2;  // any other negative number, or none at all

// Asks the host how many records the request text selects. A failure has been reported.
std::int32_t queryRecordCount(ZXFRPCSCLIENT& client);

}  // namespace request

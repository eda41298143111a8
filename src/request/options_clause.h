#pragma once

#include <string_view>

#include "client/client_object.h"

namespace request {

// Writes the options request into the shared buffer: in text form, or in AS/400 mode the binary block
//     0 "OPTIONS ", 8 decimal errors, 9 time format, 10 time separator, 11 date format, 12 date separator, 13 decimal
//     separator mode, 14 kind of sort sequence (0 none, *JOB, *HEX; 1 *LANGIDSHR; 2 *LANGIDUNQ; 3 other), 15 for
//     kind 3 the sort sequence with its terminating zero
// `request` is what is sent: the text up to the first zero byte, within what was composed. Bytes behind it stay as they
// were. False when the session cannot be started.
bool composeOptionsClause(ZXFRPCSCLIENT& client, std::string_view& request);

}  // namespace request

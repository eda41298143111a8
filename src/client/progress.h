#pragma once

#include "client/client_object.h"
#include "services/direction.h"

// The progress dialog of a transfer, as both directions and the demonstration use it.
namespace client::progress {

// Creates the dialog, with the names of the two files in it when a progress display is wanted. False when there is
// none: the caller tells, since each direction has its own owner for that box.
bool create(ZXFRPCSCLIENT& client, services::Direction direction);
// Nothing when there is none.
void destroy(ZXFRPCSCLIENT& client);

void command(const ZXFRPCSCLIENT& client, services::ProgressCommand code);
// Shows the type of the PC file. False for a number that is no type.
bool showFileType(const ZXFRPCSCLIENT& client, std::int32_t pcFileType);
// The amount of the whole transfer: records from the host, bytes to it.
void setTotal(const ZXFRPCSCLIENT& client, services::Direction direction, std::uint32_t total);

}  // namespace client::progress

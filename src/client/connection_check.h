#pragma once

struct ZXFRPCSCLIENT;

namespace client {

// Asks for the connection settings when they are incomplete, messages are enabled and the transport is one that the
// connection dialog serves (8, 9, 14, 15). False when the user cancels the dialog.
bool checkConnection(const ZXFRPCSCLIENT& client);

}  // namespace client

#pragma once

#include "client/client_object.h"

namespace receive {

// Opens the finished PC file in the spreadsheet program: by its file association, or with the program's name when the
// setting LaunchByProgramName says so. False after message 4679.
bool launchSpreadsheet(const ZXFRPCSCLIENT& client);

}  // namespace receive

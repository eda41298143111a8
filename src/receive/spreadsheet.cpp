#include "receive/spreadsheet.h"

#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"

namespace receive {
namespace {

constexpr std::int32_t NormalWindow = 1;
constexpr std::int32_t FirstSuccess = 32;

}  // namespace

bool launchSpreadsheet(const ZXFRPCSCLIENT& client) {
    const bool byName = services::GetSetting(client.settings, zhst::setting::LaunchByProgramName) != 0;
    const char* file = byName ? "EXCEL.EXE" : client.pcFileName;
    const char* parameters = byName ? client.pcFileName : nullptr;
    const std::int32_t result = platform::ShellExecuteA(client.mainWindow, "open", file, parameters, "", NormalWindow);
    if (result >= FirstSuccess) return true;
    messages::show({client.session, client.settings, client.ownerWindow}, zhst::message::SpreadsheetNotStarted,
                   client.pcFileName, static_cast<std::uint32_t>(result), " ");
    return false;
}

}  // namespace receive

#include "receive/spreadsheet.h"

#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"

namespace receive {
namespace {

constexpr std::uint32_t ProgramNotStarted = 4679;
constexpr std::int32_t NormalWindow = 1;
constexpr std::int32_t FirstSuccess = 32;

}  // namespace

bool launchSpreadsheet(const ZXFRPCSCLIENT& client) {
    const bool byName = services::GetSetting(client.settings, zhst::setting::LaunchByProgramName) != 0;
    const char* file = byName ? "EXCEL.EXE" : client.pcFileName;
    const char* parameters = byName ? client.pcFileName : nullptr;
    const std::int32_t result = platform::ShellExecuteA(client.mainWindow, "open", file, parameters, "", NormalWindow);
    if (result >= FirstSuccess) return true;
    if (services::IsMessageEnabled(client.settings, ProgramNotStarted))
        services::ShowMessage3(client.session, client.ownerWindow, ProgramNotStarted, messages::Box::ExclamationAndOk, 1,
                               ProgramNotStarted, services::insert(client.pcFileName),
                               services::insert(static_cast<std::uint32_t>(result)), services::insert(" "));
    return false;
}

}  // namespace receive

#include "verify_received.h"

#include <iostream>

#include "Z7XFRPCS/settings.h"
#include "checking/host_text.h"
#include "checking/receive_check.h"
#include "console.h"
#include "emulator/emulator.h"
#include "progress_bar.h"

namespace {

namespace fs = std::filesystem;
namespace setting = zhst::setting;

// What keeps the file from being looked at.
std::string obstacle(ZhstSession session) {
    const std::int32_t page = emulator::number(session, setting::HostCodePage);
    if (!checking::HostText::canRead(page)) return "there is no host code page " + std::to_string(page);
    std::error_code ignored;
    const fs::path path = emulator::nativePath(emulator::text(session, setting::PcFileName));
    return fs::is_regular_file(path, ignored) ? "" : "it is no file that can be read back";
}

void notVerified(Tally& tally, const std::string& reason) {
    tally.text += "; not verified: " + reason;
    if (tally.exitStatus == ExitComplete) tally.exitStatus = console::interrupted() ? ExitCancelled : ExitFailed;
}

}  // namespace

void verifyReceived(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
                    const fs::path& programFolder, ZhstSession session, TerminalUser& user, Tally& tally) {
    if (tally.exitStatus != ExitComplete) return;
    if (const std::string reason = obstacle(session); !reason.empty()) return notVerified(tally, reason);
    checking::ReceiveCheck check(library, pcText, line, programFolder, session, user.layout(), *user.receivedRecords());
    const bool isWhole = check.run();
    check.findings().print(std::cerr);
    std::cerr.flush();
    if (check.found() > 0) {
        tally.text += "; verified: " + counted(check.found(), "thing") + " would not come back as the host has it";
        tally.exitStatus = ExitBadData;
    }
    if (!isWhole)
        notVerified(tally, check.reason());
    else if (check.found() == 0)
        tally.text += "; verified: all comes back as the host has it";
}

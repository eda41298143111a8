#include "bench/transfer_session.h"

#include "bench/host_file.h"
#include "scripted/script.h"

namespace bench {

namespace setting = zhst::setting;

TransferSession::TransferSession(std::int32_t fileType, const std::string& pcFile)
    : session_(pcFile, emulator::PcSetup{}) {
    set(setting::ReceiveFileType, fileType);
    set(setting::SendFileType, fileType);
}

std::string TransferSession::transfer(Direction direction, std::uint32_t count) {
    if (!session_.client()) return "there is no client";
    scripted::answerFast(transferOf(count));
    session_.transfer(direction);
    if (const std::string message = session_.message(); !message.empty()) return message;
    const scripted::FastTally tally = scripted::fastTally();
    const std::uint64_t transferred = direction == Direction::Receive ? tally.recordsOut : tally.recordsIn;
    if (transferred == count) return {};
    return std::to_string(transferred) + " of " + std::to_string(count) + " records were transferred";
}

}  // namespace bench

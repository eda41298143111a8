#include "bench/transfer_session.h"

#include <utility>

#include "bench/host_file.h"
#include "scripted/script.h"

namespace bench {

namespace setting = host::setting;

TransferSession::TransferSession(std::int32_t fileType, const std::string& pcFile) {
    constexpr std::int32_t IbmTransport = 2, IbmRouter = 1, ToPcFile = 1, Replace = 1;
    emulator::reset();
    scripted::reset();
    emulator::setUserInterface(&user_);
    emulator::setUpPc({});
    emulator::setProviderFolder(binFolder() + "/scripted_families");
    session_ = emulator::newSession();
    for (const std::uint32_t id : {setting::HostSystemName, setting::ConnectionParam248, setting::ConnectionParam250,
                                   setting::ConnectionParam512})
        set(id, "MEMORY");
    set(setting::HostFileName, "QGPL/CUST");
    set(setting::PcFileName, pcFile);
    set(setting::TransportType, IbmTransport);
    set(setting::RouterKind, IbmRouter);
    set(setting::ReceiveOutput, ToPcFile);
    set(setting::ReceiveFileType, fileType);
    set(setting::SendFileType, fileType);
    set(setting::ExistingFileAction, Replace);
    set(setting::StartRecord, 1);
    client_ = library_.newZXFRPCSCLIENT(session_);
}

TransferSession::~TransferSession() {
    if (client_) library_.deleteZXFRPCSCLIENT(client_);
    scripted::reset();
    emulator::setUserInterface(nullptr);
}

std::string TransferSession::transfer(Direction direction, std::uint32_t count) {
    if (!client_) return "there is no client";
    user_.message.clear();
    scripted::answerFast(transferOf(count));
    library_.pcsTransferFile(client_, "", static_cast<std::uint32_t>(direction), 0, 0);
    if (!user_.message.empty()) return user_.message;
    const scripted::FastTally tally = scripted::fastTally();
    const std::uint64_t transferred = direction == Direction::Receive ? tally.recordsOut : tally.recordsIn;
    if (transferred == count) return {};
    return std::to_string(transferred) + " of " + std::to_string(count) + " records were transferred";
}

}  // namespace bench

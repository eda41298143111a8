#include "support/ready_session.h"

#include <utility>

#include "Z7XFRPCS/settings.h"
#include "scripted/script.h"

namespace setting = zhst::setting;

void completeSettings(ZhstSession session, const std::string& pcFile) {
    constexpr std::int32_t IbmTransport = 2, CommaSeparated = 2;
    for (const auto id : {setting::HostSystemName, setting::ConnectionParam248, setting::ConnectionParam250,
                          setting::ConnectionParam512})
        emulator::set(session, id, "complete");
    emulator::set(session, setting::TransportType, IbmTransport);
    emulator::set(session, setting::RouterKind, zhst::value::RouterIbm);
    emulator::set(session, setting::HostFileName, "QGPL/CUST");
    emulator::set(session, setting::PcFileName, pcFile);
    emulator::set(session, setting::ReceiveOutput, zhst::value::ToPcFile);
    emulator::set(session, setting::ReceiveFileType, CommaSeparated);
    emulator::set(session, setting::SendFileType, CommaSeparated);
    emulator::set(session, setting::ExistingFileAction, zhst::value::Replace);
    emulator::set(session, setting::DisplayRowsPerPage, 20);
    emulator::set(session, setting::StartRecord, 1);
}

ReadySession::ReadySession(const std::string& pcFile, const emulator::PcSetup& pc) {
    emulator::reset();
    scripted::reset();
    emulator::setUserInterface(&user_);
    emulator::setUpPc(pc);
    emulator::setProviderFolder(binFolder() + "/scripted_families");
    session_ = emulator::newSession();
    completeSettings(session_, pcFile);
    client_ = library_.newZXFRPCSCLIENT(session_);
}

ReadySession::~ReadySession() {
    deleteClient();
    scripted::reset();
    emulator::setUserInterface(nullptr);
}

void ReadySession::transfer(Direction direction) {
    user_.messages.clear();
    library_.pcsTransferFile(client_, "", static_cast<std::uint32_t>(direction), 0, 0);
}

void ReadySession::deleteClient() {
    if (client_) library_.deleteZXFRPCSCLIENT(std::exchange(client_, nullptr));
}

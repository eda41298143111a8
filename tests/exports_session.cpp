#include "exports_session.h"

#include <string>

#include "Z7XFRPCS/settings.h"
#include "emulator/emulator.h"

uint32_t openTestSession(void) { return emulator::newSession(); }
void runSessionCleanup(uint32_t session) { emulator::runCleanup(session, 104); }
uint32_t liveBlocks(void) { return static_cast<uint32_t>(emulator::allocations().liveBlocks); }

void expectTransfer(uint32_t session, const char* binFolder, const char* pcFile) {
    namespace setting = zhst::setting;
    emulator::setProviderFolder(std::string(binFolder) + "/scripted");
    for (const auto id : {setting::HostSystemName, setting::ConnectionParam248, setting::ConnectionParam250,
                          setting::ConnectionParam512})
        emulator::set(session, id, "complete");
    emulator::set(session, setting::TransportType, 2);
    emulator::set(session, setting::HostFileName, "QGPL/CUST");
    emulator::set(session, setting::PcFileName, pcFile);
    emulator::set(session, setting::ReceiveOutput, zhst::value::ToPcFile);
    emulator::set(session, setting::ReceiveFileType, 2);
    emulator::set(session, setting::ExistingFileAction, zhst::value::Replace);
}

void expectDemonstration(uint32_t session) {
    emulator::set(session, zhst::setting::ConnectionType, zhst::value::DemonstrationConnection);
}

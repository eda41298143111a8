#include "exports_session.h"

#include <string>

#include "emulator/emulator.h"
#include "host/setting_values.h"

uint32_t openTestSession(void) { return emulator::newSession(); }
void runSessionCleanup(uint32_t session) { emulator::runCleanup(session, 104); }
uint32_t liveBlocks(void) { return static_cast<uint32_t>(emulator::allocations().liveBlocks); }

void expectTransfer(uint32_t session, const char* binFolder, const char* pcFile) {
    namespace setting = host::setting;
    emulator::setProviderFolder(std::string(binFolder) + "/scripted");
    for (const auto id : {setting::HostSystemName, setting::ConnectionParam248, setting::ConnectionParam250,
                          setting::ConnectionParam512})
        emulator::set(session, id, "complete");
    emulator::set(session, setting::TransportType, 2);
    emulator::set(session, setting::HostFileName, "QGPL/CUST");
    emulator::set(session, setting::PcFileName, pcFile);
    emulator::set(session, setting::ReceiveOutput, host::value::ToPcFile);
    emulator::set(session, setting::ReceiveFileType, 2);
    emulator::set(session, setting::ExistingFileAction, host::value::Replace);
}

void expectDemonstration(uint32_t session) {
    emulator::set(session, host::setting::ConnectionType, host::value::DemonstrationConnection);
}

#include "exports_session.h"

#include "emulator/emulator.h"

uint32_t openTestSession(void) { return emulator::newSession(); }
void runSessionCleanup(uint32_t session) { emulator::runCleanup(session, 104); }
uint32_t liveBlocks(void) { return static_cast<uint32_t>(emulator::allocations().liveBlocks); }

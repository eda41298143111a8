#include "scripted/dispatch.h"

// E32APPC.DLL. WITHOUT_QUERY leaves the question out; WITH_KVX makes it look like the emulator's own replacement.
extern "C" {
#ifndef WITHOUT_QUERY
SCRIPTED_EXPORT std::uint32_t ZHST_CALL EHNAPPC_IsRouterLoaded(std::uint32_t) { return scripted::routerRunning(); }
#endif
#ifdef WITH_KVX
SCRIPTED_EXPORT std::uint32_t ZHST_CALL EHNAPPC_KVX() { return 0; }
#endif
}

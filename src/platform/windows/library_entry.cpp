#include <windows.h>

#include "platform/own_module.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        platform::attachLibrary(module);
    }
    return TRUE;
}

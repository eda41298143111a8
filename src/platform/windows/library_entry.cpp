#include <windows.h>

#include "client/library.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
        client::attachLibrary(module);
    }
    return TRUE;
}

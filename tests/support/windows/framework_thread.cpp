#include "support/framework_thread.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

HANDLE threadRuns = nullptr;

void NTAPI noteThread(void*, DWORD reason, void*) {
    if (reason == DLL_THREAD_ATTACH && threadRuns) SetEvent(threadRuns);
}

// Called by the loader, in each new thread first of all: it stands in the program's table of such calls.
[[gnu::section(".CRT$XLD"), gnu::used]] const PIMAGE_TLS_CALLBACK noteThreadEntry = noteThread;

}  // namespace

// GoogleTest starts a thread at the first trace, to tidy up after the main one.
void startFrameworkThread() {
    threadRuns = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    { SCOPED_TRACE(""); }
    if (WaitForSingleObject(threadRuns, 10000) != WAIT_OBJECT_0) ADD_FAILURE() << "GoogleTest's thread has not started";
    CloseHandle(threadRuns);
    threadRuns = nullptr;
}

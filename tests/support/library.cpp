#include "support/library.h"

#include <cstdio>
#include <cstdlib>

#include "support/dynamic_library.h"

namespace {

template <class Function>
void look(void* module, const char* name, Function*& function) {
    function = reinterpret_cast<Function*>(findFunction(module, name));
    if (function) return;
    std::fprintf(stderr, "the library does not export %s\n", name);
    std::exit(2);
}

std::string libraryPath() {
    const char* const named = std::getenv("Z7X_LIBRARY");
    return named && *named ? named : binFolder() + "/" + libraryFileName();
}

Library load() {
    void* const module = openLibrary(libraryPath().c_str());
    if (!module) std::exit(2);
    Library library;
    look(module, "newZXFRPCSCLIENT", library.newZXFRPCSCLIENT);
    look(module, "deleteZXFRPCSCLIENT", library.deleteZXFRPCSCLIENT);
    look(module, "getZXFRPCSCLIENT", library.getZXFRPCSCLIENT);
    look(module, "EHNTF_STF_Callback", library.EHNTF_STF_Callback);
    look(module, "pcsTransferFile", library.pcsTransferFile);
    look(module, "pcsGetFirstHostFilename", library.pcsGetFirstHostFilename);
    look(module, "pcsGetNextHostFilename", library.pcsGetNextHostFilename);
    look(module, "pcsAreXferCmdsEnabled", library.pcsAreXferCmdsEnabled);
    look(module, "TextDisplayMoreNotification", library.TextDisplayMoreNotification);
    look(module, "TextDisplayCloseNotification", library.TextDisplayCloseNotification);
    look(module, "pcsCancelTransfer", library.pcsCancelTransfer);
    look(module, "stateChangeProc", library.stateChangeProc);
    look(module, "runtimeSettingNotification", library.runtimeSettingNotification);
    look(module, xferCleanupExportName(), library.xferCleanup);
    return library;
}

}  // namespace

const Library& Library::get() {
    static const Library library = load();
    return library;
}

std::string binFolder() {
    const char* const folder = std::getenv("Z7X_BIN");
    return folder && *folder ? folder : Z7X_DEFAULT_BIN;
}

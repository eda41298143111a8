#include "transfer_library.h"

#include <stdexcept>
#include <string>

#include "library_loader.h"

namespace {

namespace fs = std::filesystem;

fs::path findLibrary(const fs::path& folder) {
    for (const std::string& name : loader::libraryFileNames()) {
        if (fs::exists(folder / name)) return folder / name;
    }
    throw std::runtime_error("no " + loader::libraryFileNames().front() + " in " + folder.string());
}

class Binder {
public:
    Binder(void* library, std::string file) : library_(library), file_(std::move(file)) {}

    // The product's export of a call-back may carry the decoration of its calling convention; `alias` is that name.
    template <class Function>
    void bind(Function& function, const char* name, const char* alias = nullptr) const {
        void* address = loader::find(library_, name);
        if (address == nullptr && alias != nullptr) address = loader::find(library_, alias);
        if (address == nullptr) throw std::runtime_error(file_ + " has no " + name);
        function = reinterpret_cast<Function>(address);
    }

private:
    void* library_;
    std::string file_;
};

}  // namespace

TransferLibrary loadTransferLibrary(const fs::path& folder) {
    const fs::path file = findLibrary(folder);
    std::string reason;
    void* module = loader::open(file, &reason);
    if (module == nullptr) throw std::runtime_error("cannot load " + file.string() + ": " + reason);

    const Binder binder(module, file.string());
    TransferLibrary library;
    binder.bind(library.newClient, "newZXFRPCSCLIENT");
    binder.bind(library.deleteClient, "deleteZXFRPCSCLIENT");
    binder.bind(library.getClient, "getZXFRPCSCLIENT");
    binder.bind(library.yieldCallback, "EHNTF_STF_Callback");
    binder.bind(library.transferFile, "pcsTransferFile");
    binder.bind(library.firstHostFilename, "pcsGetFirstHostFilename");
    binder.bind(library.nextHostFilename, "pcsGetNextHostFilename");
    binder.bind(library.areCommandsEnabled, "pcsAreXferCmdsEnabled");
    binder.bind(library.displayMore, "TextDisplayMoreNotification");
    binder.bind(library.displayClose, "TextDisplayCloseNotification");
    binder.bind(library.cancelTransfer, "pcsCancelTransfer");
    binder.bind(library.stateChange, "stateChangeProc");
    binder.bind(library.runtimeSetting, "runtimeSettingNotification");
    binder.bind(library.cleanup, "xferCleanup", "_xferCleanup@4");
    return library;
}

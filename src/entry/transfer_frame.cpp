#include "entry/transfer_frame.h"

#include <cstring>

#include "Z7XFRPCS/settings.h"
#include "client/connection_check.h"
#include "platform/platform.h"
#include "receive/receive_driver.h"
#include "send/send_driver.h"
#include "settings/pc_file_types.h"

namespace entry {
namespace {

namespace id = zhst::setting;

constexpr std::uint32_t SettingsFileCommand = 67;
constexpr std::uint32_t SettingsFileSubCode = 24;
constexpr std::uint32_t SettingsFileMode = 3;
constexpr std::uint32_t TextArgument = 32;
constexpr std::uint32_t WorkingDirectorySize = 261;

constexpr std::uint32_t PcFileOpenFlags = 11;
constexpr char TraceFileName[] = "XFERLOG.TXT";

bool runSettingsFile(const ZXFRPCSCLIENT& client, const char* settingsFile) {
    const services::AppCommandArgument argument = {TextArgument, settingsFile};
    services::RunAppCommand(client.appHandle, SettingsFileCommand, SettingsFileSubCode, SettingsFileMode, &argument);
    if (services::CheckCommandFailed(client.settings)) {
        services::SetSetting(client.settings, id::TransferActive, 0);
        return false;
    }
    char directory[WorkingDirectorySize] = {};
    services::GetStringSetting(client.settings, id::WorkingDirectory, directory, sizeof(directory));
    if (directory[0] && client.pathServices) client.pathServices->setCurrentDirectory(directory);
    return true;
}

services::WindowHandle chooseOwner(const ZXFRPCSCLIENT& client, services::WindowHandle wanted) {
    if (platform::IsWindow(wanted)) return wanted;
    const auto fallback =
        static_cast<services::WindowHandle>(services::GetSetting(client.settings, id::TransferOwnerWindow));
    return platform::GetLastActivePopup(fallback ? fallback : client.mainWindow);
}

void readFileNames(ZXFRPCSCLIENT& client) {
    client.pcFileName[0] = '\0';
    client.hostFileName[0] = '\0';
    services::GetStringSetting(client.settings, id::PcFileName, client.pcFileName, sizeof(client.pcFileName));
    services::GetStringSetting(client.settings, id::HostFileName, client.hostFileName, sizeof(client.hostFileName));
}

bool asksForTrace(const char* pcFileName) {
    return std::strstr(pcFileName, "XFERTRCE.LOG") || std::strstr(pcFileName, "xfertrce.log");
}

// The receive file type that the output asks for, in the setting and in the snapshot, for as long as this lives.
class ForcedFileType {
public:
    ForcedFileType(ZXFRPCSCLIENT& client, bool receive)
        : settings_(client.settings), saved_(client.transferSettings->receiveFileType) {
        const std::int32_t output = client.transferSettings->receiveOutput;
        if (!receive) return;
        if (output == zhst::value::ToDisplay) {
            force(client, settings::AsciiText);
            client.showProgress = 0;
        } else if (output == zhst::value::ToSpreadsheet) {
            force(client, settings::Dif);
        }
    }
    ~ForcedFileType() {
        if (forced_) services::SetSetting(settings_, id::ReceiveFileType, saved_);
    }
    ForcedFileType(const ForcedFileType&) = delete;
    ForcedFileType& operator=(const ForcedFileType&) = delete;

private:
    void force(ZXFRPCSCLIENT& client, settings::PcFileType type) {
        services::SetSetting(settings_, id::ReceiveFileType, type);
        client.transferSettings->receiveFileType = type;
        forced_ = true;
    }

    services::SettingsHandle settings_;
    std::int32_t saved_;
    bool forced_ = false;
};

void reportOutOfMemory(const ZXFRPCSCLIENT& client) {
    messages::show({client.session, client.settings, platform::GetLastActivePopup(client.mainWindow)},
                   zhst::message::OutOfMemory);
}

bool makeSnapshotAndContext(ZXFRPCSCLIENT& client) {
    provider::TransferFunctionSession* tf = client.tfSession.get();
    client.transferSettings = services::Owned<settings::TransferSettings>::make(client.session, tf);
    if (client.transferSettings)
        client.transferContext =
            services::Owned<client::TransferContext>::make(client.session, tf->monitorStore(), client.transferSettings.get());
    if (client.transferContext) return true;
    reportOutOfMemory(client);
    return false;
}

bool makeFileObject(ZXFRPCSCLIENT& client, bool receive) {
    const std::int32_t output = client.transferSettings->receiveOutput;
    if (receive && output != zhst::value::ToPcFile && output != zhst::value::ToSpreadsheet) return true;
    client.fileObject = services::CreateFileObject(client.session);
    if (!client.fileObject) {
        reportOutOfMemory(client);
        return false;
    }
    client.fileObject->setName(client.pcFileName);
    const std::int32_t type = services::GetSetting(client.settings, receive ? id::ReceiveFileType : id::SendFileType);
    const bool binary = type == settings::BasicRandom || type == settings::NoConversion;
    client.fileObject->setTypeFlag(binary ? 1 : 0);
    client.fileObject->setOpenFlags(PcFileOpenFlags);
    client.fileObject->setExistingFileAction(
        static_cast<std::uint32_t>(services::GetSetting(client.settings, id::ExistingFileAction)));
    return true;
}

void releaseFileAndDialog(ZXFRPCSCLIENT& client) {
    if (client.fileObject) {
        client.fileObject->close();
        client.fileObject->destroy();
        client.fileObject = nullptr;
    }
    if (client.progressDialog) {
        services::ProgressDialogDestroy(client.progressDialog);
        client.progressDialog = 0;
    }
}

// With the snapshot and the context in place.
void runDriver(ZXFRPCSCLIENT& client, bool receive) {
    const ForcedFileType forcedType(client, receive);
    if (makeFileObject(client, receive)) {
        if (receive)
            receive::receiveFromHost(client);
        else
            send::sendToHost(client);
    }
    releaseFileAndDialog(client);
}

void runActiveTransfer(ZXFRPCSCLIENT& client, bool receive, services::WindowHandle ownerWindow) {
    services::SetSetting(client.settings, id::TransferActive, 1);
    client.ownerWindow = chooseOwner(client, ownerWindow);
    readFileNames(client);
    if (asksForTrace(client.pcFileName)) client.tfSession->tfTraceOn(TraceFileName);
    client.cancelRequested = 0;
    if (makeSnapshotAndContext(client)) runDriver(client, receive);
    client.transferSettings.reset();
    client.transferContext.reset();
    services::SetSetting(client.settings, id::TransferActive, 0);
}

void runTransfer(ZXFRPCSCLIENT& client, const char* settingsFile, std::uint32_t direction, std::uint32_t showProgress,
                 services::WindowHandle ownerWindow) {
    client.showProgress = showProgress;
    if (settingsFile && *settingsFile && !runSettingsFile(client, settingsFile)) return;
    if (!client::checkConnection(client) || !client.tfStart()) return;
    runActiveTransfer(client, direction == 0, ownerWindow);
}

}  // namespace

void transferFile(ZXFRPCSCLIENT& client, const char* settingsFile, std::uint32_t direction, std::uint32_t showProgress,
                  services::WindowHandle ownerWindow) {
    if (client.isBusy()) return;
    client.transferRunning = true;
    runTransfer(client, settingsFile, direction, showProgress, ownerWindow);
    client.transferRunning = false;
}

}  // namespace entry

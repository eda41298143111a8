#include "entry/transfer_frame.h"

#include <cstring>

#include "Z7XFRPCS/settings.h"
#include "client/connection_check.h"
#include "client/progress.h"
#include "platform/platform.h"
#include "receive/receive_driver.h"
#include "send/send_driver.h"
#include "settings/pc_file_types.h"

namespace entry {
namespace {

namespace id = zhst::setting;
using services::Direction;

constexpr std::uint32_t WorkingDirectorySize = 261;

constexpr std::uint32_t PcFileOpenFlags = 11;  // of the emulator's file object, for a file that is transferred
constexpr char TraceFileName[] = "XFERLOG.TXT";

bool runSettingsFile(const ZXFRPCSCLIENT& client, const char* settingsFile) {
    const services::AppCommandArgument argument = {ZhstTextArgument, settingsFile};
    services::RunAppCommand(client.appHandle, ZhstRunSettingsFile, ZhstRunSettingsFileSubCode, ZhstRunSettingsFileMode,
                            &argument);
    if (services::CheckCommandFailed(client.settings)) {
        // It is 0 already; whoever watches it hears that the transfer is over.
        services::SetSetting(client.settings, id::TransferActive, 0);
        return false;
    }
    char directory[WorkingDirectorySize] = {};
    services::GetStringSetting(client.settings, id::WorkingDirectory, directory, sizeof(directory));
    if (directory[0] && client.pathServices) client.pathServices->setCurrentDirectory(directory);
    return true;
}

// A box that belongs to anything but the popup on top would open behind it.
services::WindowHandle chooseOwner(const ZXFRPCSCLIENT& client, services::WindowHandle wanted) {
    if (platform::IsWindow(wanted)) return wanted;
    const auto fallback =
        static_cast<services::WindowHandle>(services::GetSetting(client.settings, id::TransferOwnerWindow));
    return platform::GetLastActivePopup(fallback ? fallback : client.mainWindow);
}

// Emptied first: a service that finds no text may leave the buffer as it was, with the names of the transfer before.
void readFileNames(ZXFRPCSCLIENT& client) {
    client.pcFileName[0] = '\0';
    client.hostFileName[0] = '\0';
    services::GetStringSetting(client.settings, id::PcFileName, client.pcFileName, sizeof(client.pcFileName));
    services::GetStringSetting(client.settings, id::HostFileName, client.hostFileName, sizeof(client.hostFileName));
}

// These two spellings alone, anywhere in the name; in mixed case it is a file like any other.
bool asksForTrace(const char* pcFileName) {
    return std::strstr(pcFileName, "XFERTRCE.LOG") || std::strstr(pcFileName, "xfertrce.log");
}

// The receive file type that the output asks for, in the setting and in the snapshot, for as long as this lives.
class ForcedFileType {
public:
    ForcedFileType(ZXFRPCSCLIENT& client, Direction direction)
        : settings_(client.settings), saved_(client.transferSettings->receiveFileType) {
        if (direction == Direction::ToHost) return;
        if (client.transferSettings->receiveOutput == zhst::value::ToDisplay) {
            force(client, settings::AsciiText);
            client.showProgress = 0;
        } else if (client.transferSettings->receiveOutput == zhst::value::ToSpreadsheet) {
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

bool failWithoutMemory(const ZXFRPCSCLIENT& client) {
    messages::show(client.popupOwner(), zhst::message::OutOfMemory);
    return false;
}

bool makeSnapshotAndContext(ZXFRPCSCLIENT& client) {
    client.transferSettings = services::Owned<settings::TransferSettings>::make(client.session);
    if (client.transferSettings)
        client.transferContext = services::Owned<client::TransferContext>::make(
            client.session, client.tfSession->monitorStore(), client.transferSettings.get());
    return client.transferContext || failWithoutMemory(client);
}

// A display needs none, nor does output 2 or an unknown one, whose records are fetched and dropped.
bool needsPcFile(const ZXFRPCSCLIENT& client, Direction direction) {
    const std::int32_t output = client.transferSettings->receiveOutput;
    return direction == Direction::ToHost || output == zhst::value::ToPcFile || output == zhst::value::ToSpreadsheet;
}

bool makePcFile(ZXFRPCSCLIENT& client, Direction direction) {
    client.fileObject = services::OwnedFile(services::CreateFileObject(client.session));
    if (!client.fileObject) return failWithoutMemory(client);
    services::FileObject& file = *client.fileObject;
    file.setName(client.pcFileName);
    // By the live setting, in which a forced type stands as well.
    const std::int32_t type = services::GetSetting(
        client.settings, direction == Direction::FromHost ? id::ReceiveFileType : id::SendFileType);
    file.setTypeFlag(type == settings::BasicRandom || type == settings::NoConversion ? 1 : 0);
    file.setOpenFlags(PcFileOpenFlags);
    file.setExistingFileAction(
        static_cast<std::uint32_t>(services::GetSetting(client.settings, id::ExistingFileAction)));
    return true;
}

void closePcFile(ZXFRPCSCLIENT& client) {
    if (client.fileObject) client.fileObject->close();
    client.fileObject = services::OwnedFile();
}

// With the snapshot and the context in place. The forced type goes back when file and dialog are gone, while there is a
// snapshot still.
void runDriver(ZXFRPCSCLIENT& client, Direction direction) {
    const ForcedFileType forcedType(client, direction);
    if (!needsPcFile(client, direction) || makePcFile(client, direction)) {
        if (direction == Direction::FromHost)
            receive::receiveFromHost(client);
        else
            send::sendToHost(client);
    }
    closePcFile(client);
    client::progress::destroy(client);
}

void runActiveTransfer(ZXFRPCSCLIENT& client, Direction direction, services::WindowHandle ownerWindow) {
    services::SetSetting(client.settings, id::TransferActive, 1);
    client.ownerWindow = chooseOwner(client, ownerWindow);
    readFileNames(client);
    if (asksForTrace(client.pcFileName)) client.tfSession->tfTraceOn(TraceFileName);
    // Forgets a cancel that came in while the connection dialog was up or the provider was bound.
    client.cancelRequested = 0;
    if (makeSnapshotAndContext(client)) runDriver(client, direction);
    client.transferSettings.reset();
    client.transferContext.reset();
    services::SetSetting(client.settings, id::TransferActive, 0);
}

// The session stays started behind the transfer, for the next one; so does the provider.
void runTransfer(ZXFRPCSCLIENT& client, const char* settingsFile, Direction direction,
                 services::WindowHandle ownerWindow) {
    if (settingsFile && *settingsFile && !runSettingsFile(client, settingsFile)) return;
    if (client::checkConnection(client) && client.tfStart()) runActiveTransfer(client, direction, ownerWindow);
}

}  // namespace

// Running from the first step on, before the transfer is active: one that came in through a message pump, while a
// dialog is up or the provider is being bound, would take the provider, or the snapshot, from under this one.
void transferFile(ZXFRPCSCLIENT& client, const char* settingsFile, Direction direction, std::uint32_t showProgress,
                  services::WindowHandle ownerWindow) {
    if (client.isBusy()) return;
    client.transferRunning = true;
    client.showProgress = showProgress;
    runTransfer(client, settingsFile, direction, ownerWindow);
    client.transferRunning = false;
}

}  // namespace entry

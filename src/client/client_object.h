#pragma once

#include <cstddef>

#include "client/transfer_context.h"
#include "provider/transfer_function_session.h"
#include "services/owned.h"
#include "services/owned_file.h"
#include "settings/transfer_settings.h"
#include "text/text_buffer.h"

// The transfer client of one host session: plain state that the requests and drivers work on. It lives from
// newZXFRPCSCLIENT to deleteZXFRPCSCLIENT; what the comments call "running" is meaningful during one transfer only.
struct ZXFRPCSCLIENT {
    explicit ZXFRPCSCLIENT(services::SessionHandle handle) : session(handle) {}

    // The two flags that the text display's notifications set: they must stay the first two words.
    std::uint32_t moreRequested = 0;
    std::uint32_t displayClosed = 0;
    services::Owned<provider::TransferFunctionSession> tfSession;  // made again by tfStart when it is missing
    services::SessionHandle session;
    services::SettingsHandle settings = 0;
    services::PathServices* pathServices = nullptr;
    services::OwnedFile fileObject;               // running: the PC file
    services::TextDisplayHandle textDisplay = 0;  // running, output to the screen
    services::WindowHandle ownerWindow = 0;       // running
    services::WindowHandle mainWindow = 0;
    std::uint32_t cancelRequested = 0;                  // running: set by pcsCancelTransfer
    std::uint32_t showProgress = 0;                     // running
    services::ProgressDialogHandle progressDialog = 0;  // running
    char pcFileName[1025] = {};                         // running
    char hostFileName[1025] = {};                       // running
    services::AppHandle appHandle = 0;
    provider::TfResult lastResult;
    services::Owned<client::TransferContext> transferContext;      // running
    services::Owned<settings::TransferSettings> transferSettings;  // running
    const services::SessionServices* sessionServices = nullptr;
    std::uint32_t demoIndex = 0;
    services::Owned<text::TextBuffer> workText;     // the filter of a demonstration catalogue
    services::Owned<text::TextBuffer> requestText;  // 4096 characters: statements are composed in it
    bool transferRunning = false;                   // from the first step of a transfer to its end
    const char* browseFilter = nullptr;             // while a first catalogue call runs

    // Lets the emulator process pending window messages once.
    void pumpMessages();
    // Makes the transfer-function session when it is missing, then starts it.
    bool tfStart();
    // Whether the connection of the session is the demonstration now.
    bool isDemonstration() const;
    // A transfer, or a call that waits for the provider, has the shared buffer: what comes in from its message pump
    // would write over what stands there.
    bool isBusy() const { return transferRunning || (tfSession && tfSession->isWaiting()); }

    // Owners of message boxes: the main window; its last active popup; during a transfer, the transfer's owner window.
    messages::Owner messageOwner() const { return {session, settings, mainWindow}; }
    messages::Owner popupOwner() const;
    messages::Owner dialogOwner() const { return {session, settings, transferRunning ? ownerWindow : mainWindow}; }
};
static_assert(offsetof(ZXFRPCSCLIENT, moreRequested) == 0);
static_assert(offsetof(ZXFRPCSCLIENT, displayClosed) == 4);
static_assert(sizeof(void*) != 4 || offsetof(ZXFRPCSCLIENT, tfSession) == 8);

namespace client {

// The transfer-function session of a client; null when there is no memory for it.
services::Owned<provider::TransferFunctionSession> makeTransferFunctionSession(services::SessionHandle session);

}  // namespace client

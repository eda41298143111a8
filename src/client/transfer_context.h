#pragma once

#include "services/session.h"
#include "settings/transfer_settings.h"

namespace client {

// What the reader and the writer of PC file descriptions are handed for one transfer. Owns nothing.
struct TransferContext {
    TransferContext(services::SessionHandle owner, provider::TransferFunctionSession* functions,
                    ::settings::TransferSettings* snapshot)
        : session(owner),
          tfSession(functions),
          pathServices(services::GetPathServices(owner)),
          settings(services::GetSessionSettings(owner)),
          transferSettings(snapshot),
          mainWindow(services::GetSessionWindow(settings)) {}

    services::SessionHandle session;
    provider::TransferFunctionSession* tfSession;
    services::PathServices* pathServices;
    services::SettingsHandle settings;
    ::settings::TransferSettings* transferSettings;
    services::WindowHandle mainWindow;
};

}  // namespace client

#pragma once

#include "host/session.h"
#include "settings/transfer_settings.h"

namespace settings {

// What the reader and the writer of PC file descriptions are handed for one transfer. Owns nothing.
struct TransferContext {
    TransferContext(host::SessionHandle owner, provider::TransferFunctionSession* functions, TransferSettings* snapshot)
        : session(owner),
          tfSession(functions),
          pathServices(static_cast<host::PathServices*>(host::GetSessionObject(owner, host::PathServicesKind))),
          settings(host::GetSessionSettings(owner)),
          transferSettings(snapshot),
          mainWindow(host::GetSessionWindow(settings)) {}

    host::SessionHandle session;
    provider::TransferFunctionSession* tfSession;
    host::PathServices* pathServices;
    host::SettingsHandle settings;
    TransferSettings* transferSettings;
    host::WindowHandle mainWindow;
};

}  // namespace settings

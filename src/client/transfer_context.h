#pragma once

#include "messages/box.h"
#include "services/objects.h"

namespace monitor {
class MonitorStore;
}
namespace settings {
struct TransferSettings;
}

namespace client {

// What the reader and the writer of PC file descriptions are handed for one transfer. Owns nothing.
struct TransferContext {
    TransferContext(services::SessionHandle owner, monitor::MonitorStore* store, ::settings::TransferSettings* snapshot)
        : session(owner),
          monitorStore(store),
          pathServices(services::GetPathServices(owner)),
          settings(services::GetSessionSettings(owner)),
          transferSettings(snapshot),
          mainWindow(services::GetSessionWindow(settings)) {}

    messages::Owner messageOwner() const { return {session, settings, mainWindow}; }

    services::SessionHandle session;
    monitor::MonitorStore* monitorStore;   // null when there was no memory for it
    services::PathServices* pathServices;  // null when the session has none
    services::SettingsHandle settings;
    ::settings::TransferSettings* transferSettings;
    services::WindowHandle mainWindow;
};

}  // namespace client

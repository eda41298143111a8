#include "client/connection_check.h"

#include "Z7XFRPCS/settings.h"
#include "client/client_object.h"
#include "platform/own_module.h"
#include "platform/platform.h"
#include "provider/transports.h"

namespace client {
namespace {

namespace id = zhst::setting;

// What a text setting begins with, and whether it is empty, which is the emulator's to say: a setting may count as
// filled without a text.
struct SettingStart {
    SettingStart(services::SettingsHandle settings, std::uint32_t setting)
        : isFilled(services::GetStringSetting(settings, setting, text, sizeof(text)) != 0) {}
    bool isEmpty() const { return !isFilled; }
    char text[2] = {};
    bool isFilled;
};

// Everything the check looks at, read before anything is decided.
struct ConnectionSettings {
    explicit ConnectionSettings(services::SettingsHandle settings)
        : system(settings, id::HostSystemName),
          param250(settings, id::ConnectionParam250),
          param248(settings, id::ConnectionParam248),
          param512(settings, id::ConnectionParam512),
          messagesEnabled(services::IsMessageEnabled(settings, 0) != 0),
          transport(provider::transportOf(services::GetSetting(settings, id::TransportType))) {}

    // A system name that begins with a period needs no parameter 250; no more of the name is looked at.
    bool isIncomplete() const {
        return system.isEmpty() || (param250.isEmpty() && system.text[0] != '.') || param248.isEmpty() ||
               (param512.isEmpty() && transport.has(provider::NamedSystem));
    }

    SettingStart system, param250, param248, param512;
    bool messagesEnabled;
    provider::Transport transport;
};

}  // namespace

bool checkConnection(const ZXFRPCSCLIENT& client) {
    const ConnectionSettings connection(client.settings);
    const bool asks = connection.messagesEnabled && connection.transport.has(provider::ServedByConnectionDialog);
    if (!asks || !connection.isIncomplete()) return true;
    return services::ConnectionDialog(client.session, platform::moduleHandle(),
                                      platform::GetLastActivePopup(client.mainWindow)) != 0;
}

}  // namespace client

#include "client/connection_check.h"

#include "Z7XFRPCS/settings.h"
#include "client/client_object.h"
#include "platform/own_module.h"
#include "platform/platform.h"

namespace client {
namespace {

namespace id = zhst::setting;

constexpr std::int32_t NamedSystemTransport = 9;

// What a text setting begins with, and whether it is empty, which is the emulator's to say: a setting may count as
// filled without a text.
struct SettingStart {
    SettingStart(services::SettingsHandle settings, std::uint32_t setting)
        : isFilled(services::GetStringSetting(settings, setting, text, sizeof(text)) != 0) {}
    bool isEmpty() const { return !isFilled; }
    char text[2] = {};
    bool isFilled;
};

bool isServedByDialog(std::int32_t transportType) {
    return transportType == 8 || transportType == NamedSystemTransport || transportType == 14 || transportType == 15;
}

// Everything the check looks at, read before anything is decided.
struct ConnectionSettings {
    explicit ConnectionSettings(services::SettingsHandle settings)
        : system(settings, id::HostSystemName),
          param250(settings, id::ConnectionParam250),
          param248(settings, id::ConnectionParam248),
          param512(settings, id::ConnectionParam512),
          messagesEnabled(services::IsMessageEnabled(settings, 0) != 0),
          transportType(services::GetSetting(settings, id::TransportType)) {}

    // A system name that begins with a period needs no parameter 250; no more of the name is looked at.
    bool isIncomplete() const {
        return system.isEmpty() || (param250.isEmpty() && system.text[0] != '.') || param248.isEmpty() ||
               (param512.isEmpty() && transportType == NamedSystemTransport);
    }

    SettingStart system, param250, param248, param512;
    bool messagesEnabled;
    std::int32_t transportType;
};

}  // namespace

bool checkConnection(const ZXFRPCSCLIENT& client) {
    const ConnectionSettings connection(client.settings);
    if (!connection.isIncomplete() || !connection.messagesEnabled || !isServedByDialog(connection.transportType))
        return true;
    return services::ConnectionDialog(client.session, platform::moduleHandle(),
                                      platform::GetLastActivePopup(client.mainWindow)) != 0;
}

}  // namespace client

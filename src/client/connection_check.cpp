#include "client/connection_check.h"

#include "client/client_object.h"
#include "client/library.h"
#include "host/setting_ids.h"
#include "platform/platform.h"

namespace client {
namespace {

namespace id = host::setting;

constexpr std::int32_t NamedSystemTransport = 9;

// Two characters are enough: whether the text is empty, and what it begins with.
struct SettingStart {
    SettingStart(host::SettingsHandle settings, std::uint32_t setting) {
        host::GetStringSetting(settings, setting, text, sizeof(text));
    }
    bool isEmpty() const { return text[0] == '\0'; }
    char text[2] = {};
};

bool isServedByDialog(std::int32_t transportType) {
    return transportType == 8 || transportType == NamedSystemTransport || transportType == 14 || transportType == 15;
}

bool isIncomplete(host::SettingsHandle settings, std::int32_t transportType) {
    const SettingStart system(settings, id::HostSystemName);
    const SettingStart param250(settings, id::ConnectionParam250);
    const SettingStart param248(settings, id::ConnectionParam248);
    const SettingStart param512(settings, id::ConnectionParam512);
    return system.isEmpty() || (param250.isEmpty() && system.text[0] != '.') || param248.isEmpty() ||
           (param512.isEmpty() && transportType == NamedSystemTransport);
}

}  // namespace

bool checkConnection(const ZXFRPCSCLIENT& client) {
    const std::int32_t transportType = host::GetSetting(client.settings, id::TransportType);
    const bool ask = isIncomplete(client.settings, transportType) && host::IsMessageEnabled(client.settings, 0) &&
                     isServedByDialog(transportType);
    if (!ask) return true;
    return host::ConnectionDialog(client.session, moduleHandle(), platform::GetLastActivePopup(client.mainWindow)) != 0;
}

}  // namespace client

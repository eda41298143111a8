#pragma once

#include <cstdint>

#include "provider/transports.h"
#include "services/session.h"

namespace provider {

// The two settings that decide which provider serves a session, as they were read last.
struct Connection {
    std::int32_t transportType = 0;
    std::int32_t routerKind = 0;

    void read(services::SettingsHandle settings) {
        transportType = services::GetSetting(settings, zhst::setting::TransportType);
        routerKind = services::GetSetting(settings, zhst::setting::RouterKind);
    }
    // Before a start: a transport that settles the router kind first writes it to the settings.
    void settle(services::SettingsHandle settings) {
        transportType = services::GetSetting(settings, zhst::setting::TransportType);
        const std::int32_t router = transport().settledRouter;
        if (router != 0) services::SetSetting(settings, zhst::setting::RouterKind, router);
        routerKind = services::GetSetting(settings, zhst::setting::RouterKind);
    }

    Transport transport() const { return transportOf(transportType); }
    // Whether the AS/400 client serves the connection. The settings are asked for the router kind: an idle session
    // takes no note of changes, so its own is as old as its last start.
    bool isAs400Mode(services::SettingsHandle settings) const {
        return transport().family == Family::As400 ||
               services::GetSetting(settings, zhst::setting::RouterKind) == zhst::value::RouterAs400;
    }
};

// The emulator changes several settings of a connection one after the other, between two changes of the setting
// ConnectionChanging. Meanwhile the new values are only kept here: a stop waits for the last of them, and is spared
// when the values of before have come back.
class ConnectionChange {
public:
    bool isUnderWay() const { return underWay_; }
    void begin() {
        underWay_ = true;
        kept_ = {};
    }
    void keep(std::int32_t Connection::*setting, std::int32_t value) { kept_.*setting = value; }
    // True when the session has to be stopped, since its provider is no longer the one asked for.
    bool end(const Connection& inUse) {
        underWay_ = false;
        return isAnother(kept_.transportType, inUse.transportType) || isAnother(kept_.routerKind, inUse.routerKind);
    }

private:
    // 0 is no value: the setting has not been touched.
    static bool isAnother(std::int32_t kept, std::int32_t inUse) { return kept != 0 && kept != inUse; }

    bool underWay_ = false;
    Connection kept_;
};

}  // namespace provider

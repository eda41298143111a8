#pragma once

#include "services/session.h"

namespace provider {

// The host system designation that accompanies the requests: "SYSTEM(", eight name positions padded with blanks, ")".
class SystemDesignation {
public:
    // Of the setting HostSystemName, in memory of this object; null when the session names no host system. A qualified
    // name, NET.NAME, is reduced to what the hosts want of it.
    const char* make(services::SettingsHandle settings, bool mayBeQualified);

private:
    static constexpr std::size_t Capacity = 301;

    void compose(const char* name);

    // The setting is read for every request, but rarely changes.
    char setting_[Capacity] = {};
    bool mayBeQualified_ = false;
    bool isNamed_ = false;
    char text_[Capacity] = {};
};

}  // namespace provider

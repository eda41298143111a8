#pragma once

#include "services/session.h"

namespace provider {

// The host system designation that accompanies the requests: "SYSTEM(", eight name positions padded with blanks, ")".
class SystemDesignation {
public:
    // Made anew of the setting HostSystemName, in memory of this object; null when the session names no host system. A
    // qualified name, NET.NAME, is reduced to what the hosts want of it.
    const char* make(services::SettingsHandle settings, bool mayBeQualified);

private:
    char text_[301] = {};
};

}  // namespace provider

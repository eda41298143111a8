#pragma once

#include <cstdint>

#include "Z7XFRPCS/settings.h"

namespace provider {

// Which kind of provider a transport type asks for. Transport 30 passes the router check, but is served by the AS/400
// client alone.
enum class Transport { Ibm, Emulator, Appc, As400, Unknown };

constexpr Transport transportOf(std::int32_t transportType) {
    switch (transportType) {
        case 2:
        case 4:
            return Transport::Ibm;
        case 8:
        case 9:
        case 14:
        case 15:
            return Transport::Emulator;
        case 5:
        case 7:
        case 13:
            return Transport::Appc;
        case zhst::value::TransportAs400:
            return Transport::As400;
        default:
            return Transport::Unknown;
    }
}

// Transports of the emulator's own transfer-function providers.
constexpr bool isOwnProviderTransport(std::int32_t transportType) {
    const Transport transport = transportOf(transportType);
    return transport == Transport::Emulator || transport == Transport::Appc;
}

}  // namespace provider

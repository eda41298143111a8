#pragma once

#include <cstdint>

#include "Z7XFRPCS/settings.h"

// The transports, values of the setting TransportType, and all in which they differ for a transfer.
namespace provider {

// Who serves a transport: E32TFW.DLL, ZEHNTFW.DLL, ZTFWAPPC.DLL or AS4XFER.DLL.
enum class Family { None, Ibm, Emulator, Appc, As400 };

enum TransportTraits : std::uint32_t {
    ServedByConnectionDialog = 1,  // the dialog can ask for what its connection lacks
    OwnTextAlone = 2,              // the texts of its own provider's codes say enough without a sentence around them
    QualifiedName = 4,             // its host systems may be named with their network, NET.NAME
    NamedSystem = 8,               // its connection is incomplete without ConnectionParam512
};

struct Transport {
    std::int32_t number;
    Family family;  // with the IBM router; with any other the AS/400 client serves every transport
    std::uint32_t traits = 0;
    std::int32_t settledRouter = 0;  // the router kind that goes with it, whatever the setting says; 0 for any

    constexpr bool has(TransportTraits trait) const { return (traits & trait) != 0; }
};

inline constexpr Transport Transports[] = {
    {2, Family::Ibm, 0, zhst::value::RouterIbm},
    {4, Family::Ibm, 0, zhst::value::RouterIbm},
    {5, Family::Appc, OwnTextAlone},
    {7, Family::Appc, OwnTextAlone},
    {8, Family::Emulator, ServedByConnectionDialog | OwnTextAlone | QualifiedName},
    {9, Family::Emulator, ServedByConnectionDialog | NamedSystem},
    {13, Family::Appc, OwnTextAlone},
    {14, Family::Emulator, ServedByConnectionDialog},
    {15, Family::Emulator, ServedByConnectionDialog},
    {zhst::value::TransportAs400, Family::As400, 0, zhst::value::RouterAs400},
};

// The row of a transport; one without family and traits for a number that is none.
constexpr Transport transportOf(std::int32_t number) {
    for (const Transport& row : Transports)
        if (row.number == number) return row;
    return {number, Family::None};
}

// The emulator's own transfer-function providers, whose codes below those of the transfer function have texts.
constexpr bool isOwnProvider(Family family) { return family == Family::Emulator || family == Family::Appc; }
constexpr bool isOwnProviderTransport(std::int32_t number) { return isOwnProvider(transportOf(number).family); }

}  // namespace provider

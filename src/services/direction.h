#pragma once

#include <cstdint>

#include "Z7XFRPCS/dialogs.h"

namespace services {

// The direction of a transfer, with the values of the progress dialog and of the setting TransferDirection. (The export
// pcsTransferFile counts the other way round: 0 is from the host.)
enum class Direction : std::uint32_t {
    ToHost = ZhstToHost,
    FromHost = ZhstFromHost,
};

}  // namespace services

#pragma once

#include <cstdint>

#include "client/client_object.h"
#include "record/outcome.h"

namespace send {

// Tells, unless it is a text that the emulator's converter has refused and reported, why a PC record did not become a
// host record, and the host, where it waits for more, that no more data follows. `recordNumber` counts from 1.
void refuseRecord(const ZXFRPCSCLIENT& client, const record::ConversionResult& result, std::uint32_t recordNumber);

}  // namespace send

#pragma once

#include "client/client_object.h"
#include "record/outcome.h"

namespace receive {

// Tells why a host record did not become a PC record, unless the emulator's converter has.
void tellConversionFailure(const ZXFRPCSCLIENT& client, const record::ConversionResult& result);

}  // namespace receive

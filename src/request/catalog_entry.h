#pragma once

#include <string_view>

#include "Z7XFRPCS/exports.h"
#include "client/client_object.h"

namespace request {

// Both take a catalogue record of any length. False when its text cannot be converted from the host's code page; the
// entry then has what was converted before.

// Name and description, with the blanks that pad them. A record without a description leaves the entry's as it was.
bool formatFileEntry(const ZXFRPCSCLIENT& client, std::string_view record, HostCatalogEntry& entry);

// "NAME <tab> description <line feed> type label, type, length label, length" as the entry's name.
bool formatColumnEntry(const ZXFRPCSCLIENT& client, std::string_view record, HostCatalogEntry& entry);

}  // namespace request

#pragma once

#include <string_view>

#include "Z7XFRPCS/exports.h"
#include "client/client_object.h"

namespace request {

// A text that cannot be converted from the host's code page ends the entry, which then has what was converted before.

// Name and description of a record of any length, with the blanks that pad them. A record without a description leaves
// the entry's as it was.
void formatFileEntry(const ZXFRPCSCLIENT& client, std::string_view record, HostCatalogEntry& entry);

// "NAME <tab> description <line feed> type label, type, length label, length" as the entry's name. The record stands at
// the start of a buffer that had zeros before it, and is read as long as its layout is.
void formatColumnEntry(const ZXFRPCSCLIENT& client, const char* record, HostCatalogEntry& entry);

}  // namespace request

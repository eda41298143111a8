#pragma once

#include <cstdint>

#include "Z7XFRPCS/exports.h"
#include "client/client_object.h"

// Lists what the host has: libraries, files, members, or the fields of a file. Entries are fetched one by one.
//
// Record of a library, file or member, by its length:  60: name 10, description 50;  75: 21, 54;  83: 33, 50;
// 96: 44, 52;  any other length: description only.
// Record of a field:  0 name, 10 bytes (13 for a list over several files); behind it the type, 5 bytes; the length,
// 16 bits, high byte first, at 15 (19); the description, 50 bytes, at 21 (25).
namespace request {

// Both return a CatalogResult. They write into `entry` what its comments say and nothing beyond; 3 without a message of
// the entry leaves it as it was. A listing that a stop of the session ends is 3 too.
std::uint32_t getFirstHostFilename(ZXFRPCSCLIENT& client, const char* filter, HostCatalogEntry* entry);
std::uint32_t getNextHostFilename(ZXFRPCSCLIENT& client, HostCatalogEntry* entry);

}  // namespace request

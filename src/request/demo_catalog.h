#pragma once

#include <cstdint>

#include "Z7XFRPCS/exports.h"
#include "client/client_object.h"

// The catalogue of a demonstration connection: three libraries, files or members, or the six fields of one file and the
// twelve of several, named by sample texts of the message catalogue.
namespace request {

// Both return a CatalogResult: an entry, or the end of the list.
std::uint32_t firstDemoEntry(ZXFRPCSCLIENT& client, const char* filter, HostCatalogEntry& entry);
std::uint32_t nextDemoEntry(ZXFRPCSCLIENT& client, HostCatalogEntry& entry);

}  // namespace request

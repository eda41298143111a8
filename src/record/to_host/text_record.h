#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "record/host_layout.h"
#include "record/outcome.h"
#include "record/to_host/field_conversion.h"

namespace record::to_host {

// Splits a record of a text-like PC file type into its fields and builds the host record of them. `length` becomes the
// bytes that were built.
ConversionResult convertTextRecord(const HostLayout& layout, const FieldConversion& conversion, std::string_view record,
                                   std::span<char> hostRecord, std::uint32_t& length);

}  // namespace record::to_host

#pragma once

#include <cstdint>
#include <string_view>

#include "record/record_converter.h"
#include "services/owned.h"

namespace record::to_pc {

// A record of a text-like PC file type, or the cells of a row of the text display. False after a reported failure;
// `work` owns the `length` bytes of the record.
bool toDelimitedRecord(RecordConverter& converter, std::string_view hostRecord, services::OwnedBytes& work,
                       std::uint32_t& length);

}  // namespace record::to_pc

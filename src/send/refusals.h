#pragma once

#include <cstdint>

#include "record/record_converter.h"

// What stops a record on its way to the host. Each tells the user and is always false.
namespace send {

// A DIF value without the head or the end that its host field wants.
bool refuseDifValue(const record::RecordConverter& converter);

// A number that its host field cannot hold as it is. Both numbers count from 1.
bool refuseNumber(const record::RecordConverter& converter, std::uint32_t recordNumber, std::uint32_t fieldNumber);

// A numeric field of no length.
bool refuseEmptyField(const record::RecordConverter& converter, const record::HostField& field);

// A host record without room for the next field.
bool refuseShortHostRecord(const record::RecordConverter& converter);

}  // namespace send

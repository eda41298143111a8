#pragma once

#include <string_view>

#include "record/record_converter.h"
#include "services/owned.h"

namespace record::to_pc {

// A finished PC record. It stands in the shared buffer, over the host record; one too long for that stays in the buffer
// it was built in, which this owns.
struct PcRecord {
    std::string_view bytes;
    services::OwnedBytes longRecord;
};

// Turns the host record at the start of the shared buffer into a record of the receive file type, or into a row of the
// text display. A record that ends inside a field gives the bytes of a character field that are there; a number that is
// not whole, and everything behind it, gives nothing. False after a reported failure.
bool convertHostRecord(RecordConverter& converter, std::uint32_t hostLength, PcRecord& record);

// Adds a column per field to the text display and sets the fields' column widths. False when there are no fields.
bool defineDisplayColumns(RecordConverter& converter);

}  // namespace record::to_pc

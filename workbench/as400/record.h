#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "as400/database.h"
#include "as400/host_text.h"
#include "as400/request_options.h"

// Host records: values of the database to bytes and back.
namespace as400 {

// A field as one request delivers or takes it: its length is final.
struct RecordField {
    Field field;
    const codepages::CodePage* page = nullptr;
};

// Gives dates and times the length of the request's formats.
RecordField makeRecordField(const Field& field, const codepages::CodePage& page, const RequestOptions& options);

// Writes one value into `out`, whose size is the field's length. NULL is zero, blank or the first of January 1. Throws
// a Refusal for a number that does not fit, and for a damaged one (bytes instead of a number) unless the options tell
// to pass it as it is.
void writeValue(const RecordField& field, const Value& value, const RequestOptions& options,
                std::span<std::uint8_t> out);

// The value for the database, which is a number or stands in `bytes` or `text`. Throws a Refusal for a date or time
// that is none, and for a damaged number, which with the option to ignore it is kept as bytes.
Value readValue(const RecordField& field, std::span<const std::uint8_t> bytes, const RequestOptions& options,
                std::string& text);

}  // namespace as400

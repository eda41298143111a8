#pragma once

#include <cstdint>

namespace record {

// What became of a record on its way. A conversion says nothing to anybody: whoever asked for it knows whom to tell.
enum class Outcome {
    Converted,
    NoMemory,
    TextNotConverted,    // between the code pages
    NoTextForm,          // to the PC: a binary number too long for one
    BadNumber,           // to the host, like all that follow: a text that its field cannot store
    BadDifValue,         // a DIF value without the head or the end that its field wants
    FieldWithoutLength,  // a numeric field of no bytes
    HostRecordTooShort,  // no room for the field in the host record
};

struct PlannedField;

// With the field at which the record stopped: its number from 1 on, and the field itself.
struct [[nodiscard]] ConversionResult {
    Outcome outcome = Outcome::Converted;
    std::uint32_t fieldNumber = 0;
    const PlannedField* field = nullptr;

    bool isConverted() const { return outcome == Outcome::Converted; }
};

}  // namespace record

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "record/to_host/field_conversion.h"

namespace record::to_host {

struct ConvertedField {
    std::uint32_t hostBytes = 0;  // 0: the text cannot be stored, or the field is none of numbers
    std::size_t consumed = 0;     // characters of the PC text; the delimiter is not one of them
};

// Converts the text of a hexadecimal or numeric field, which begins at the start of `text` (the rest of its record),
// into the host's form. The text takes a fixed width in AsciiText files and ends at the field's delimiter in the
// others.
ConvertedField convertFieldText(const FieldConversion& conversion, const FieldPlan& plan, std::string_view text,
                                char* destination);

}  // namespace record::to_host

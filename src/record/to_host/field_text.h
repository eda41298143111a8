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

// Characters of the text form of a number in a PC file, which begins with `firstCharacter`. A zoned or packed number of
// a fixed file that begins with neither a blank nor "-" (or any, with the setting NoSignPosition 1) has no sign
// position, and is one narrower.
std::uint32_t fieldTextWidth(const FieldConversion& conversion, const FieldPlan& plan, char firstCharacter);

}  // namespace record::to_host

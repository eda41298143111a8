#pragma once

#include <cstdint>

#include "record/field_plan.h"

namespace record::to_pc {

// Writes the text of a hexadecimal or numeric field into `text`, terminated, and returns its length. `source` holds the
// field's bytes; `text` has room for twice as many and 64 more. Fixed files give the fixed form,
// right-aligned in the field's width with blanks for leading zeros; the others the shortest. A negative zero is a zero.
std::uint32_t formatNumericField(const FieldPlan& plan, const char* source, char* text);

}  // namespace record::to_pc

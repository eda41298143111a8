#pragma once

#include <string_view>

#include "record/outcome.h"
#include "record/to_host/field_conversion.h"

namespace record::to_host {

// Takes the text of a character field off the rest of its record and converts it into the field's host bytes at
// `destination`. Text beyond the field is cut, blanks fill what is left.
Outcome extractCharacterField(const FieldConversion& conversion, const FieldPlan& plan, std::string_view& rest,
                              char* destination);

}  // namespace record::to_host

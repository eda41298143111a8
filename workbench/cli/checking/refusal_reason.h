#pragma once

#include <string>

#include "checking/record_fields.h"
#include "host_layout.h"

namespace checking {

// Why a field does not take a text, for the user: "15 digits before the point, the field has 6". Empty when this page
// finds nothing against it.
std::string refusalReason(const PcFileForm& form, const HostColumn& column, const FieldText& field);

}  // namespace checking

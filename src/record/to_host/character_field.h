#pragma once

#include <string_view>

#include "record/record_converter.h"

namespace record::to_host {

// Takes the text of a character field off the rest of its record and converts it into the field's host bytes at
// `destination`. Text beyond the field is cut, blanks fill what is left. A failure has been reported, except that of
// the code-page conversion.
bool extractCharacterField(record::RecordConverter& converter, const record::HostField& field, std::string_view& rest,
                           char* destination);

}  // namespace record::to_host

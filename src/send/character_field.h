#pragma once

#include <string_view>

#include "receive/record_converter.h"

namespace send {

// Takes the text of a character field off the rest of its record and converts it into the field's host bytes at
// `destination`. Text beyond the field is cut, blanks fill what is left. A failure has been reported, except that of
// the code-page conversion.
bool extractCharacterField(receive::RecordConverter& converter, const receive::HostField& field, std::string_view& rest,
                           char* destination);

}  // namespace send

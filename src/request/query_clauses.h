#pragma once

#include <string_view>

#include "client/client_object.h"

namespace request {

// Composes the clauses of a query into requestText. Without `groupingOnly`: " FROM ", the host files as typed, a blank
// and the where part, replacing what stood there; unless `stopAfterWhere`, the grouping parts behind it. With
// `groupingOnly`: the grouping parts, behind what stands there. The clause texts are the user's, fetched from the
// emulator on each call. A clause that does not fit is left out, and without a clause source nothing is composed.
// False, reported, when replaced qualifiers do not fit or there is no memory.
bool composeQueryClauses(ZXFRPCSCLIENT& client, bool stopAfterWhere, bool groupingOnly);

// Replaces file qualifiers from `start` on, in AS/400 mode; otherwise the text stays as the user wrote it. False,
// reported, when the result does not fit.
bool applyFileQualifiers(ZXFRPCSCLIENT& client, text::TextBuffer& text, std::uint32_t start);

}  // namespace request

#pragma once

#include <cstdint>
#include <string_view>

#include "messages/box.h"
#include "provider/connection.h"
#include "provider/tf_result.h"

namespace provider {

// The result of an exchange, and what its failure would be told with.
struct Exchange {
    const TfResult& result;
    std::string_view hostText;              // what may be read of the result: the host's message about a failure
    std::uint32_t contextText;              // index in the transfer table of what was being done; 0 for none
    services::ProgressDialogHandle dialog;  // hidden while a message is up; 0 for none
};

// The one place where the result of an exchange is judged: true when the transfer may go on. A failure is shown by the
// message rules; its code and text go into the settings LastReturnCode and LastErrorText.
bool judgeResult(const messages::Owner& owner, const Connection& connection, const Exchange& exchange);

}  // namespace provider

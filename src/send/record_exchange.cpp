#include "send/record_exchange.h"

#include <algorithm>

namespace send {

bool placeRecord(ZXFRPCSCLIENT& client, std::string_view record, char fill) {
    if (!request::sessionStands(client)) return false;
    char* buffer = client.tfSession->dataBuffer();
    char* end = std::copy(record.begin(), record.end(), buffer);
    std::fill(end, buffer + provider::BufferSize, fill);
    return true;
}

bool putRecord(ZXFRPCSCLIENT& client, std::uint32_t hostLength, request::Context context) {
    provider::TransferFunctionSession& tf = *client.tfSession;
    tf.tfRequest(TF_PUT_DATA, hostLength, 0, client.lastResult, tf.hostSystemDesignation(), client.progressDialog);
    return request::checkLastResult(client, context);
}

}  // namespace send

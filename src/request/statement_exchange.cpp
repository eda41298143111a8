#include "request/statement_exchange.h"

namespace request {
namespace {

constexpr char StatementTooLong[] =
    "The request for the host does not fit: the file list, the fields and the conditions together may have 4095 "
    "characters. Shorten them and try again.";

}  // namespace

void sendStatement(ZXFRPCSCLIENT& client, std::string_view statement, Direction direction,
                   services::ProgressDialogHandle dialog) {
    provider::TransferFunctionSession& tf = *client.tfSession;
    monitor::MonitorStore* store = tf.monitorStore();
    const bool receive = direction == Direction::Receive;
    if (store) receive ? store->recordReceiveStatement(statement) : store->recordSendStatement(statement);
    tf.tfRequest(TF_SEND_REQUEST, static_cast<std::uint32_t>(statement.size()), 0, client.lastResult,
                 tf.hostSystemDesignation(), dialog);
    if (store) receive ? store->touchReceiveList() : store->touchSendList();
}

bool checkLastResult(ZXFRPCSCLIENT& client, Context context) {
    return client.tfSession->tfCheckResult(context, client.lastResult, client.progressDialog);
}

bool exchangeStatement(ZXFRPCSCLIENT& client, std::string_view statement, Direction direction) {
    sendStatement(client, statement, direction, client.progressDialog);
    return checkLastResult(client, SendingRequest);
}

bool sessionStands(ZXFRPCSCLIENT& client) {
    if (client.tfSession->isStarted()) return true;
    client.tfSession->tellInterruption(client.progressDialog);
    return false;
}

char* requestBuffer(ZXFRPCSCLIENT& client) { return client.tfStart() ? client.tfSession->dataBuffer() : nullptr; }

bool refuseLongStatement(const ZXFRPCSCLIENT& client) {
    messages::showOwnText(client.dialogOwner(), StatementTooLong, client.progressDialog);
    return false;
}

}  // namespace request

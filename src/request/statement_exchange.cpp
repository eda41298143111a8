#include "request/statement_exchange.h"

#include "messages/own_sentences.h"

namespace request {

using services::Direction;

// Published before it is exchanged: a monitor shows what the host is working on.
void sendStatement(ZXFRPCSCLIENT& client, std::string_view statement, Direction direction,
                   services::ProgressDialogHandle dialog) {
    provider::TransferFunctionSession& tf = *client.tfSession;
    monitor::MonitorStore* store = tf.monitorStore();
    const bool receive = direction == Direction::FromHost;
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

// The session may have been stopped since the last exchange, and its buffer with it: a new one is asked for each time.
char* requestBuffer(ZXFRPCSCLIENT& client) { return client.tfStart() ? client.tfSession->dataBuffer() : nullptr; }

// Cut, a statement would ask for something else.
bool refuseLongStatement(const ZXFRPCSCLIENT& client) {
    messages::showOwnText(client.dialogOwner(), messages::sentence::StatementTooLong, client.progressDialog);
    return false;
}

}  // namespace request

#include "request/statement_exchange.h"

#include "Z7XFRPCS/settings.h"
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

bool checkResult(ZXFRPCSCLIENT& client, Context context, const provider::TfResult& result) {
    return sessionStands(client) && client.tfSession->tfCheckResult(context, result, client.progressDialog);
}

bool checkLastResult(ZXFRPCSCLIENT& client, Context context) { return checkResult(client, context, client.lastResult); }

bool exchangeStatement(ZXFRPCSCLIENT& client, std::string_view statement, Direction direction) {
    sendStatement(client, statement, direction, client.progressDialog);
    return checkLastResult(client, SendingRequest);
}

bool sessionStands(ZXFRPCSCLIENT& client) {
    using Interruption = provider::TransferFunctionSession::Interruption;
    if (client.tfSession->isStarted()) return true;
    const Interruption interruption = client.tfSession->takeInterruption();
    if (interruption == Interruption::None) return false;
    // The code of the exchange before would stand in the settings and read as success.
    services::SetSetting(client.settings, zhst::setting::LastReturnCode, TF_NOT_STARTED);
    // Who ends the session, or asks for a list, knows from the result.
    if (interruption == Interruption::ConnectionChange && client.transferRunning)
        messages::showOwnText(client.dialogOwner(), messages::sentence::ConnectionStopped, client.progressDialog);
    return false;
}

// The session may have been stopped since the last exchange, and its buffer with it: a new one is asked for each time.
// One that stands is not asked to start: it may owe a stop, and a request may be open.
char* requestBuffer(ZXFRPCSCLIENT& client) {
    if ((client.tfSession && client.tfSession->isStarted()) || client.tfStart()) return client.tfSession->dataBuffer();
    // A stop may have come in while the provider was being bound.
    if (client.tfSession) sessionStands(client);
    return nullptr;
}

// Cut, a statement would ask for something else.
bool refuseLongStatement(const ZXFRPCSCLIENT& client) {
    messages::showOwnText(client.dialogOwner(), messages::sentence::StatementTooLong, client.progressDialog);
    return false;
}

}  // namespace request

#include "request/field_descriptions.h"

#include "messages/own_sentences.h"
#include "request/statement_exchange.h"

namespace request {
namespace {

// No host record format has more fields; a provider that goes on describing them is stopped.
constexpr std::int32_t MaximumExchanges = 8192;

void publish(ZXFRPCSCLIENT& client, services::Direction direction, std::string_view description) {
    monitor::MonitorStore* store = client.tfSession->monitorStore();
    if (!store) return;
    if (direction == services::Direction::ToHost)
        store->recordSendField(description);
    else
        store->recordReceiveField(description);
}

// A provider that gives no length gives a description all the same; of any other length at least that much is wanted.
std::string_view descriptionOf(const provider::TransferFunctionSession& tf, provider::TfResult answer) {
    if (answer.dataLength == 0) answer.dataLength = record::description::Size;
    return tf.returned(answer);
}

bool addField(ZXFRPCSCLIENT& client, record::HostLayout& layout, services::Direction direction,
              std::string_view answer) {
    if (answer.size() < record::description::Size) {
        messages::showOwnText(client.messageOwner(), messages::sentence::DescriptionTooShort, client.progressDialog);
        return false;
    }
    const std::string_view description = answer.substr(0, record::description::Size);
    publish(client, direction, description);
    if (layout.append(description)) return true;
    messages::show(client.messageOwner(), zhst::message::OutOfMemory);
    return false;
}

}  // namespace

bool readHostFields(ZXFRPCSCLIENT& client, record::HostLayout& layout, services::Direction direction,
                    provider::TfResult& last) {
    provider::TransferFunctionSession& tf = *client.tfSession;
    const services::ProgressDialogHandle dialog = client.progressDialog;
    if (dialog) services::ProgressDialogCommand(dialog, services::ProgressCommand::ReadingFields);
    for (std::int32_t exchange = 0;; ++exchange) {
        if (exchange == MaximumExchanges) {
            messages::showOwnText(client.messageOwner(), messages::sentence::TooManyDescriptions, dialog);
            break;
        }
        // The dialog, or a box, may have let a stop in.
        if (!sessionStands(client)) break;
        tf.tfRequest(TF_GET_FIELD, 0, 0, last, tf.hostSystemDesignation(), dialog);
        if (last.returnCode == TF_NO_MORE_DATA) break;
        if (last.returnCode == TF_SUCCESS) {
            if (!addField(client, layout, direction, descriptionOf(tf, last))) break;
        } else if (!checkResult(client, NoContext, last)) {
            break;
        }
    }
    return !layout.isEmpty();
}

}  // namespace request

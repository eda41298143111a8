#include "send/record_sender.h"

#include <algorithm>

#include "Z7XFRPCS/settings.h"
#include "messages/own_sentences.h"
#include "send/refusals.h"

namespace send {

RecordSender::RecordSender(ZXFRPCSCLIENT& client, const record::FileRules& rules)
    : client_(client),
      layout_(rules),
      records_(layout_, client.tfSession->codePage(), client.settings,
               client.transferSettings->hostFileType == zhst::value::SourceFile) {}

bool RecordSender::prepare() {
    const messages::Owner owner = client_.dialogOwner();
    for (const record::PlannedField& each : layout_) {
        hostLength_ += each.plan.bytes;
        if (hostLength_ > provider::BufferSize) {
            messages::showOwnText(owner, messages::sentence::SentRecordTooLong, client_.progressDialog);
            return false;
        }
    }
    if (layout_.isEmpty()) {
        messages::showOwnText(owner, messages::sentence::NoFields, client_.progressDialog);
        return false;
    }
    // A field without a length is refused under its name, with the first record.
    if (records_.allocate(std::max(hostLength_, 1u))) return true;
    messages::show(owner, zhst::message::OutOfMemory);
    return false;
}

// Blanks fill the rest: fields behind the end of a record are blank.
bool RecordSender::place(std::string_view record, char fill) {
    if (!request::sessionStands(client_)) return false;
    char* buffer = client_.tfSession->dataBuffer();
    char* end = std::copy(record.begin(), record.end(), buffer);
    std::fill(end, buffer + provider::BufferSize, fill);
    return true;
}

bool RecordSender::convertAndPut(std::uint32_t length, std::uint32_t recordNumber, request::Context context) {
    provider::TransferFunctionSession& tf = *client_.tfSession;
    const record::ConversionResult result = records_.convert(tf.dataBuffer(), length);
    if (!result.isConverted()) {
        refuseRecord(client_, result, recordNumber);
        return false;
    }
    tf.tfRequest(TF_PUT_DATA, hostLength_, 0, client_.lastResult, tf.hostSystemDesignation(), client_.progressDialog);
    return request::checkLastResult(client_, context);
}

}  // namespace send

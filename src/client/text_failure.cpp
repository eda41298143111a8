#include "client/text_failure.h"

#include "messages/own_sentences.h"

namespace client {

void tellTextNotConverted(const ZXFRPCSCLIENT& client) {
    const text::CodePageState& codePage = client.tfSession->codePage();
    if (codePage.lacksTables())
        messages::show(client.messageOwner(), zhst::message::OutOfMemory);
    else if (codePage.lacksTextServices())
        messages::showOwnText(client.messageOwner(), messages::sentence::NoTextServices);
    else
        messages::showOwnText(client.messageOwner(), messages::sentence::TextNotConverted);
}

}  // namespace client

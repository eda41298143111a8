#include "receive/conversion_failure.h"

#include <cstdio>

#include "messages/own_sentences.h"
#include "record/field_plan.h"

namespace receive {
namespace {

void tellNoTextForm(const ZXFRPCSCLIENT& client, const record::HostField& field) {
    char text[160];
    std::snprintf(text, sizeof(text), messages::sentence::NoTextForm, field.name(),
                  static_cast<unsigned>(field.length()));
    messages::showOwnText(client.messageOwner(), text, client.progressDialog);
}

}  // namespace

void tellConversionFailure(const ZXFRPCSCLIENT& client, const record::ConversionResult& result) {
    // A text that was not converted has been reported by the emulator's converter.
    if (result.outcome == record::Outcome::NoMemory) messages::show(client.messageOwner(), zhst::message::OutOfMemory);
    if (result.outcome == record::Outcome::NoTextForm) tellNoTextForm(client, result.field->field);
}

}  // namespace receive

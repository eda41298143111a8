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
    switch (result.outcome) {
        case record::Outcome::NoMemory:
            messages::show(client.messageOwner(), zhst::message::OutOfMemory);
            break;
        case record::Outcome::NoTextForm:
            tellNoTextForm(client, result.field->field);
            break;
        default:  // a text that was not converted has been reported by the emulator's converter
            break;
    }
}

}  // namespace receive

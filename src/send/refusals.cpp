#include "send/refusals.h"

#include "record/field_plan.h"
#include "text/double_byte.h"

namespace send {
namespace {

constexpr std::size_t ShownName = 10;

void tellFieldWithoutLength(const ZXFRPCSCLIENT& client, const record::HostField& field) {
    char name[ShownName + 1];
    text::copyCut(field.name(), name, sizeof(name));
    messages::show(client.messageOwner(), zhst::message::FieldWithoutLength, name);
}

// Shown whatever the user has switched off: without the record's number nobody finds the place.
messages::Box placeBox(zhst::CatalogueText text) { return messages::boxOf(text).gatedBy(messages::Box::NoGate); }

}  // namespace

void refuseRecord(const ZXFRPCSCLIENT& client, const record::ConversionResult& result, std::uint32_t recordNumber) {
    switch (result.outcome) {
        case record::Outcome::BadNumber:
            messages::show(client.messageOwner(), placeBox(zhst::text::BadNumber), recordNumber, result.fieldNumber);
            break;
        case record::Outcome::BadDifValue:
            messages::show(client.messageOwner(), zhst::message::BadDifValue);
            break;
        case record::Outcome::HostRecordTooShort:
            messages::show(client.messageOwner(), placeBox(zhst::text::HostRecordTooShort));
            break;
        case record::Outcome::FieldWithoutLength:
            return tellFieldWithoutLength(client, result.field->field);
        default:  // a text that was not converted has been reported by the emulator's converter
            return;
    }
    client.tfSession->tfEndData();
}

}  // namespace send

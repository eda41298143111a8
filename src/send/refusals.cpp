#include "send/refusals.h"

#include "text/double_byte.h"

namespace send {
namespace {

constexpr std::uint32_t EmptyFieldMessage = 4418;
constexpr std::uint32_t BadDifValue = 4607;
constexpr std::uint32_t TextTable = 7;
constexpr std::uint32_t BadNumberText = 439;
constexpr std::uint32_t ShortHostRecordText = 440;
constexpr std::uint32_t ConversionHelp = 124;
constexpr std::size_t ShownName = 10;

// The host is told that no more data follows.
bool endData(const record::RecordConverter& converter) {
    converter.tfSession->tfEndData();
    return false;
}

}  // namespace

bool refuseDifValue(const record::RecordConverter& converter) {
    messages::show(converter.messageOwner(), BadDifValue);
    return endData(converter);
}

bool refuseNumber(const record::RecordConverter& converter, std::uint32_t recordNumber, std::uint32_t fieldNumber) {
    services::ShowMessage2(converter.session, converter.mainWindow, services::MessageId(TextTable, BadNumberText),
                           messages::Box::ExclamationAndOk, 1, ConversionHelp, services::insert(recordNumber),
                           services::insert(fieldNumber));
    return endData(converter);
}

bool refuseEmptyField(const record::RecordConverter& converter, const record::HostField& field) {
    char name[ShownName + 1];
    text::copyCut(field.name(), name, sizeof(name));
    messages::show(converter.messageOwner(), EmptyFieldMessage, name);
    return false;
}

bool refuseShortHostRecord(const record::RecordConverter& converter) {
    services::ShowMessage(converter.session, converter.mainWindow, services::MessageId(TextTable, ShortHostRecordText),
                          messages::Box::ExclamationAndOk, 1, ConversionHelp);
    return endData(converter);
}

}  // namespace send

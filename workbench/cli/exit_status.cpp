#include "exit_status.h"

#include "Z7XFRPCS/provider.h"
#include "emulator/catalogue.h"
#include "return_codes.h"

namespace {

namespace message = zhst::message;
using emulator::catalogue::messageId;

// A host that refuses a record has taken the request: what is wrong is in the data.
ExitStatus statusOfCode(std::uint32_t returnCode) {
    if (returnCode == TF_HOST_MESSAGE_INSTEAD) return ExitBadData;
    const return_codes::Row* row = return_codes::find(returnCode);
    return row != nullptr && row->speaker == return_codes::Speaker::Host ? ExitHostRefused : ExitFailed;
}

// Boxes that are no message of the catalogue.
ExitStatus statusOfReadyText(const emulator::MessageBox& box, std::uint32_t returnCode) {
    if (box.source == emulator::MessageSource::PcFile) return ExitLocalFile;
    if (box.scrolling) return statusOfCode(returnCode);
    return ExitBadData;  // the library's own sentences, and those of the converter, are about data and descriptions
}

bool isDescriptionFault(std::uint32_t id) {
    return id == message::DescriptionEmpty ||
           (id >= message::DescriptionHeader && id <= message::DescriptionSecondOptions) ||
           id == message::DescriptionFileType;
}

}  // namespace

std::string exitStatusHelp() {
    std::string lines = "Exit status:";
#define STATUS_LINE(number, name, meaning) lines += "\n  " #number + std::string(6 - sizeof #number, ' ') + meaning;
    Z7X_EXIT_STATUSES(STATUS_LINE)
#undef STATUS_LINE
    return lines;
}

ExitStatus statusOf(const emulator::MessageBox& box, std::uint32_t returnCode) {
    if (isDescriptionFault(box.id)) return ExitBadData;
    switch (box.id) {
        case 0:
            return statusOfReadyText(box, returnCode);
        case message::ErrorWithContext:
        case message::ErrorWithHostText:
        case message::TextAlone:
            return statusOfCode(returnCode);
        case message::SeparatorsAlike:
        case message::DifNotAppended:
        case message::DescriptionNotUsed:
        case message::SourceOfSeveralFields:
            return ExitUsage;
        case message::RecordTooLong:
        case message::FieldWithoutLength:
        case message::BadDifValue:
        case messageId(zhst::text::BadNumber):
        case messageId(zhst::text::HostRecordTooShort):
            return ExitBadData;
        case message::TransferCancelled:
            return ExitCancelled;
        default:
            return ExitFailed;
    }
}

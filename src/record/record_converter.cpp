#include "record/record_converter.h"

#include <utility>

namespace record {
namespace {

// No host record format has more fields; a provider that goes on describing them is stopped.
constexpr std::int32_t MaximumExchanges = 8192;

constexpr char DescriptionTooShort[] =
    "The host's description of a field is shorter than 40 bytes. The fields behind it are not read.";
constexpr char NotConverted[] = "A text of the file cannot be converted between the code pages of the host and the PC.";
constexpr char NoTextServices[] = "This session cannot convert the text of host code page 43.";
constexpr char TooManyDescriptions[] =
    "The host does not stop describing fields. The fields behind the last are not read.";

}  // namespace

HostFieldList::~HostFieldList() {
    while (HostField* field = first_) {
        first_ = field->next;
        services::Owned<HostField>::adopt(field).reset();
    }
}

void HostFieldList::append(services::Owned<HostField> field) {
    HostField* added = field.release();
    (last_ ? last_->next : first_) = added;
    last_ = added;
    ++count_;
}

RecordConverter::RecordConverter(services::SessionHandle owner, provider::TransferFunctionSession* functions,
                                 client::TransferContext* context, settings::TransferSettings* snapshot,
                                 services::TextDisplayHandle display, std::int32_t count)
    : session(owner),
      tfSession(functions),
      settings(services::GetSessionSettings(owner)),
      transferSettings(snapshot),
      transferContext(context),
      mainWindow(services::GetSessionWindow(settings)),
      textDisplay(display),
      expectedCount(count) {}

bool RecordConverter::readHostFields(services::ProgressDialogHandle dialog, bool forSend) {
    if (dialog) services::ProgressDialogCommand(dialog, services::ProgressCommand::ReadingFields);
    for (std::int32_t exchange = 0;; ++exchange) {
        if (exchange == MaximumExchanges) {
            messages::showOwnText(messageOwner(), TooManyDescriptions, dialog);
            break;
        }
        tfSession->tfRequest(TF_GET_FIELD, 0, 0, fieldResult, tfSession->hostSystemDesignation(), dialog);
        if (fieldResult.returnCode == TF_NO_MORE_DATA) break;
        if (fieldResult.returnCode != TF_SUCCESS) {
            if (!tfSession->tfCheckResult(0, fieldResult, dialog)) break;
        } else if (!addField(tfSession->returned(fieldResult), forSend, dialog)) {
            break;
        }
    }
    return !fields.isEmpty();
}

bool RecordConverter::addField(std::string_view description, bool forSend, services::ProgressDialogHandle dialog) {
    if (description.size() < DescriptionSize) {
        messages::showOwnText(messageOwner(), DescriptionTooShort, dialog);
        return false;
    }
    description = description.substr(0, DescriptionSize);
    if (monitor::MonitorStore* store = tfSession->monitorStore())
        forSend ? store->recordSendField(description) : store->recordReceiveField(description);
    auto field = services::Owned<HostField>::make(messageOwner(), description.data(), transferSettings);
    if (!field) {
        messages::show(messageOwner(), zhst::message::OutOfMemory);
        return false;
    }
    fields.append(std::move(field));
    return true;
}

bool RecordConverter::hostToPc(const char* source, char* destination, std::uint32_t length, std::uint32_t capacity,
                               std::uint32_t* convertedLength) const {
    return converted(tfSession->codePage().hostToPcText(source, destination, length, capacity, convertedLength));
}

bool RecordConverter::pcToHost(const char* source, char* destination, std::uint32_t length,
                               std::uint32_t destinationLength) const {
    return converted(tfSession->codePage().pcToHostText(source, destination, length, destinationLength));
}

bool RecordConverter::converted(std::uint32_t result) const {
    if (result == 0) return true;
    if (tfSession->codePage().lacksTables())
        messages::show(messageOwner(), zhst::message::OutOfMemory);
    else if (tfSession->codePage().lacksTextServices())
        messages::showOwnText(messageOwner(), NoTextServices);
    else
        messages::showOwnText(messageOwner(), NotConverted);
    return false;
}

}  // namespace record

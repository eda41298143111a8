#include "transfer_watch.h"

#include <algorithm>

#include "Z7XFRPCS/dialogs.h"
#include "Z7XFRPCS/provider.h"
#include "emulator/catalogue.h"

namespace {

// Of four bytes, the lowest first.
std::uint32_t numberAt(std::string_view result, std::size_t place) {
    std::uint32_t number = 0;
    for (std::size_t at = place + 4; at-- > place;) number = number << 8 | static_cast<std::uint8_t>(result[at]);
    return number;
}

constexpr std::size_t CodeAt = 1, DetailAt = 5, LengthAt = 9;

// The icon of a message box.
constexpr std::uint32_t IconMask = 0xF0;
constexpr std::uint32_t QuestionIcon = 0x20;

}  // namespace

bool isQuestion(const emulator::MessageBox& box) { return (box.flags & IconMask) == QuestionIcon; }

bool TransferWatch::storeWritten(std::string_view code, std::string_view value) {
    if (code == "XDGI") return value.size() >= ResultHeader && resultWritten(value);
    if (code != "XDFI") return false;
    bytesOfRecords_ = bytesWritten_;
    bytesWritten_ += value.size();
    if (dataEnded_) return false;  // the trailer of a DIF file is no record
    ++recordsWritten_;
    errorsBeforeLastWrite_ = errors_;
    return true;
}

bool TransferWatch::resultWritten(std::string_view value) {
    providerAsked_ = true;
    const auto function = static_cast<std::uint8_t>(value[0]);
    const std::uint32_t result = numberAt(value, CodeAt);
    const bool accepted = result == TF_SUCCESS || result == TF_COMPLETED;
    if (accepted && function == TF_GET_DATA && dataBegun_) {
        ++recordsFetched_;
        fetched_ = value.substr(ResultHeader, numberAt(value, LengthAt));
        return false;
    }
    if (accepted && function == TF_PUT_DATA) {
        ++recordsSent_;
        return true;
    }
    if (accepted) return false;
    if (result != TF_NO_MORE_DATA) lastRefusal_ = {function, result, numberAt(value, DetailAt)};
    // The library does not judge the end of a request; a host that rolls a send back says so here.
    const bool ends = function == TF_END_REQUEST || function == TF_END_DATA;
    if (ends && recordsSent_ > 0 && result != TF_NO_MORE_DATA) endRefused_ = true;
    // Before the data phase the end of data is that of the record count or of the field list.
    if (function == TF_GET_DATA && result == TF_NO_MORE_DATA && dataBegun_) dataEnded_ = true;
    return false;
}

void TransferWatch::progressCommand(std::uint32_t command) {
    switch (static_cast<ZhstProgressCommand>(command)) {
        case ZhstDataBegins:
            dataBegun_ = true;
            lastRefusal_ = {};  // as of a member that exists, which the user has had replaced
            break;
        case ZhstAllDataTransferred:
            dataEnded_ = true;
            break;
        case ZhstEnded:
            dialogEnded_ = true;
            break;
        case ZhstSimulationCancelled:
            simulationCancelled_ = true;
            break;
        default:
            break;
    }
}

void TransferWatch::message(const emulator::MessageBox& box) {
    if (isQuestion(box)) {
        asked_ = true;
        return;
    }
    if (box.id == emulator::catalogue::messageId(zhst::text::NoRecords)) noRecords_ = true;
    if (errors_++ > 0) return;
    failure_ = statusOf(box, lastRefusal_.code);
    recordRefused_ = dataBegun_ && lastRefusal_.code == 0 && failure_ == ExitBadData;
}

void TransferWatch::cancelled() {
    if (!cancelled_) cancelledFirst_ = errors_ == 0;
    cancelled_ = true;
}

Ending TransferWatch::ending() const {
    if (dataEnded_ && endRefused_) return Ending::NotKept;
    if (errors_ > 0 && !cancelledFirst_) {
        if (dataEnded_) return Ending::FailedAfter;
        return noRecords_ && errors_ == 1 ? Ending::NoRecords : Ending::Failed;
    }
    if (dataEnded_) return errors_ > 0 ? Ending::FailedAfter : Ending::Complete;
    if (cancelled_) return Ending::Cancelled;
    if (displayClosed_) return Ending::Closed;
    if (asked_) return Ending::Declined;
    const bool simulated = dataBegun_ && dialogEnded_ && !simulationCancelled_ && !providerAsked_;
    return simulated ? Ending::Simulated : Ending::Failed;
}

std::uint64_t TransferWatch::records(std::uint64_t jobRecords) const {
    if (recordsSent_ > 0) return recordsSent_;
    if (displayRows_ > 0) {
        // A row is there before its cells are converted.
        const bool rowInHandFailed = !dataEnded_ && !displayClosed_ && displayRows_ == jobRecords;
        return displayRows_ - (rowInHandFailed ? 1 : 0);
    }
    // The store hears of a record before the file does. When the record in hand is not followed by a fetch, it is in
    // the file if the user cancelled, and not if its writing was refused.
    const bool writeFailed = errors_ > errorsBeforeLastWrite_ || !cancelled_;
    const bool lastWriteFailed = !dataEnded_ && recordsWritten_ > 0 && recordsWritten_ == jobRecords && writeFailed;
    return recordsWritten_ - (lastWriteFailed ? 1 : 0);
}

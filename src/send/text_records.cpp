#include "send/text_records.h"

#include "Z7XFRPCS/settings.h"
#include "record/to_host/record_finder.h"

namespace send {
namespace {

constexpr char PcBlank = 0x20;

}  // namespace

ReadOutcome TextRecords::sendAll(std::string_view read, std::uint32_t& complete) {
    std::size_t start = 0;
    if (!sendComplete(read, start)) return ReadOutcome::Failure;
    complete = static_cast<std::uint32_t>(start);
    if (read.size() >= TextReadSize) return start == 0 ? refuseLongRecord() : ReadOutcome::MoreData;
    return sendTrailing(read.substr(start)) ? ReadOutcome::EndOfData : ReadOutcome::Failure;
}

bool TextRecords::sendComplete(std::string_view read, std::size_t& start) {
    for (std::size_t end = start; record::to_host::findRecordEnd(form(), read, end);) {
        ++count_;
        if (isToBeSent() && !sendRecord(read.substr(start, end - start), read[end], count_)) return false;
        start = end + record::to_host::terminatorBytes(read, end);
        end = start;
    }
    return true;
}

// What stands behind the last terminator of the file. A tuple counts like any other; a line is sent whatever the first
// record to be sent is, and not counted.
bool TextRecords::sendTrailing(std::string_view trailing) {
    if (trailing.empty()) return true;
    if (form() == settings::RecordForm::Tuples) {
        ++count_;
        return !isToBeSent() || sendRecord(trailing, '\0', count_);
    }
    const char last = trailing.back();
    // The finder takes no CR or LF in the last place for a terminator; at the end of the file it is one.
    if (last == '\r' || last == '\n') trailing.remove_suffix(1);
    return sendRecord(trailing, last, count_ + 1);
}

// An empty record is a line of a source member, and nothing in a data file.
bool TextRecords::sendRecord(std::string_view record, char terminator, std::uint32_t recordNumber) {
    if (monitor::MonitorStore* store = client_.tfSession->monitorStore()) store->recordSentRecord(record);
    if (!sender_.place(record, PcBlank)) return false;
    const bool toSource = client_.transferSettings->hostFileType == zhst::value::SourceFile;
    if (record.empty() && (!toSource || terminator == record::to_host::EndOfFileByte)) return true;
    return sender_.convertAndPut(static_cast<std::uint32_t>(record.size()), recordNumber, request::SendingTextRecord);
}

ReadOutcome TextRecords::refuseLongRecord() const {
    const messages::HiddenDialog hidden(client_.progressDialog);
    messages::show(client_.dialogOwner(), zhst::message::RecordTooLong);
    return ReadOutcome::Failure;
}

}  // namespace send

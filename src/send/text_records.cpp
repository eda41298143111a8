#include "send/text_records.h"

#include "Z7XFRPCS/settings.h"
#include "record/to_host/record_parser.h"
#include "send/record_exchange.h"
#include "settings/pc_file_types.h"

namespace send {
namespace {

constexpr std::uint32_t RecordTooLong = 4410;
constexpr char PcBlank = 0x20;

}  // namespace

TextRecords::TextRecords(ZXFRPCSCLIENT& client, record::RecordConverter& converter, std::uint32_t hostLength)
    : client_(client),
      converter_(converter),
      hostLength_(hostLength),
      kind_(converter.transferSettings->sendFileType == settings::Dif ? record::to_host::RecordKind::Tuple
                                                                      : record::to_host::RecordKind::Line) {}

ReadOutcome TextRecords::sendAll(std::string_view read, std::uint32_t& complete) {
    std::size_t start = 0;
    if (!sendComplete(read, start)) return ReadOutcome::Failure;
    complete = static_cast<std::uint32_t>(start);
    if (read.size() >= TextReadSize) return start == 0 ? refuseLongRecord() : ReadOutcome::MoreData;
    return sendTrailing(read.substr(start)) ? ReadOutcome::EndOfData : ReadOutcome::Failure;
}

bool TextRecords::sendComplete(std::string_view read, std::size_t& start) {
    for (std::size_t end = start; record::to_host::findRecordEnd(kind_, read, end);) {
        ++converter_.recordCount;
        if (isToBeSent() && !sendRecord(read.substr(start, end - start), read[end], converter_.recordCount))
            return false;
        start = end + record::to_host::terminatorBytes(read, end);
        end = start;
    }
    return true;
}

// What stands behind the last terminator of the file. A tuple counts like any other; a line is sent whatever the first
// record to be sent is, and not counted.
bool TextRecords::sendTrailing(std::string_view trailing) {
    if (trailing.empty()) return true;
    if (kind_ == record::to_host::RecordKind::Tuple) {
        ++converter_.recordCount;
        return !isToBeSent() || sendRecord(trailing, '\0', converter_.recordCount);
    }
    const char last = trailing.back();
    // The finder takes no CR or LF in the last place for a terminator; at the end of the file it is one.
    if (last == '\r' || last == '\n') trailing.remove_suffix(1);
    return sendRecord(trailing, last, converter_.recordCount + 1);
}

// An empty record is a line of a source member, and nothing in a data file.
bool TextRecords::sendRecord(std::string_view record, char terminator, std::uint32_t recordNumber) {
    if (monitor::MonitorStore* store = client_.tfSession->monitorStore()) store->recordSentRecord(record);
    if (!placeRecord(client_, record, PcBlank)) return false;
    const bool toSource = converter_.transferSettings->hostFileType == zhst::value::SourceFile;
    if (record.empty() && (!toSource || terminator == record::to_host::EndOfFileByte)) return true;
    return record::to_host::convertRecord(converter_, static_cast<std::uint32_t>(record.size()), recordNumber) &&
           putRecord(client_, hostLength_, request::SendingTextRecord);
}

ReadOutcome TextRecords::refuseLongRecord() const {
    const messages::HiddenDialog hidden(client_.progressDialog);
    messages::show({client_.session, client_.settings, client_.ownerWindow}, RecordTooLong);
    return ReadOutcome::Failure;
}

}  // namespace send

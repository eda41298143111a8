#pragma once

#include <cstdint>
#include <string_view>

#include "client/client_object.h"
#include "record/record_converter.h"
#include "record/to_host/record_finder.h"

namespace send {

// The most that one read takes of a text-like file, and so the longest record.
inline constexpr std::uint32_t TextReadSize = 4095;

enum class ReadOutcome {
    EndOfData,
    MoreData,
    Failure,  // reported
};

// Sends the records of a text-like PC file, read by read.
class TextRecords {
public:
    TextRecords(ZXFRPCSCLIENT& client, record::RecordConverter& converter, std::uint32_t hostLength);

    // Sends the records of `read`; one shorter than TextReadSize is the file's last. `complete` becomes the bytes of
    // the complete records: the next read begins behind them.
    ReadOutcome sendAll(std::string_view read, std::uint32_t& complete);

private:
    bool sendComplete(std::string_view read, std::size_t& start);
    bool sendTrailing(std::string_view trailing);
    bool sendRecord(std::string_view record, char terminator, std::uint32_t recordNumber);
    bool isToBeSent() const { return converter_.transferSettings->startRecord <= converter_.recordCount; }
    ReadOutcome refuseLongRecord() const;

    ZXFRPCSCLIENT& client_;
    record::RecordConverter& converter_;
    std::uint32_t hostLength_;
    record::to_host::RecordKind kind_;
};

}  // namespace send

#pragma once

#include <cstdint>
#include <string_view>

#include "client/client_object.h"
#include "send/record_sender.h"

namespace send {

// The most that one read takes of a text-like file, and so the longest record.
inline constexpr std::uint32_t TextReadSize = 4095;

enum class ReadOutcome {
    EndOfData,
    MoreData,
    Failure,  // reported
};

// Sends the records of a text-like PC file, read by read, and counts them.
class TextRecords {
public:
    TextRecords(ZXFRPCSCLIENT& client, RecordSender& sender) : client_(client), sender_(sender) {}

    // Sends the records of `read`; one shorter than TextReadSize is the file's last. `complete` becomes the bytes of
    // the complete records: the next read begins behind them.
    ReadOutcome sendAll(std::string_view read, std::uint32_t& complete);

    // Records found so far.
    std::uint32_t count() const { return count_; }

private:
    bool sendComplete(std::string_view read, std::size_t& start);
    bool sendTrailing(std::string_view trailing);
    bool sendRecord(std::string_view record, char terminator, std::uint32_t recordNumber);
    bool isToBeSent() const { return client_.transferSettings->startRecord <= count_; }
    settings::RecordForm form() const { return sender_.layout().rules().type.form; }
    ReadOutcome refuseLongRecord() const;

    ZXFRPCSCLIENT& client_;
    RecordSender& sender_;
    std::uint32_t count_ = 0;
};

}  // namespace send

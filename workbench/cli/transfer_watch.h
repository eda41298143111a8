#pragma once

#include <cstdint>
#include <string_view>

#include "emulator/emulator.h"
#include "exit_status.h"

// How a transfer ended. The library returns nothing; this is told from what passed on the way.
enum class Ending {
    Complete,
    Simulated,    // the demonstration connection's progress: nothing was transferred
    NoRecords,    // the count found none, so no file was written
    Declined,     // a question was not answered with the confirmation
    Closed,       // the display was closed before its end
    Cancelled,    // by the user
    NotKept,      // the host refused the end of a send, so what it took is not in its file
    FailedAfter,  // all data had gone through, then something else failed
    Failed,
};

// A result of the monitor store: function, return code, detail and length in front of the data.
inline constexpr std::size_t ResultHeader = 13;

// Collects the signs of one transfer.
class TransferWatch {
public:
    // What a provider gave; code 0 when it never refused anything.
    struct Answer {
        std::uint32_t function = 0, code = 0, detail = 0;
    };

    // True when a record went by, to the PC file or to the host.
    bool storeWritten(std::string_view code, std::string_view value);
    void progressCommand(std::uint32_t command);
    void displayRow() { ++displayRows_; }
    void displayEnded() { dataEnded_ = true; }
    void displayClosed() { displayClosed_ = true; }
    void message(const emulator::MessageBox& box);
    void cancelled();

    bool isCancelled() const { return cancelled_; }
    // The host said at the end that it keeps nothing of what was sent.
    bool isEndRefused() const { return endRefused_; }
    // The first error was that of a record of the PC file that does not go into a host record.
    bool isRecordRefused() const { return recordRefused_; }
    // Records that went by so far, for a progress.
    std::uint64_t recordsSeen() const { return recordsSent_ + recordsWritten_; }

    Ending ending() const;
    // The status that the first error stands for; what follows from it is no news.
    ExitStatus failure() const { return failure_; }
    // Records in the PC file, on the display or accepted by the host. jobRecords is the setting JobRecordsReceived: the
    // number of the record that a receive fetched last or was about to fetch.
    std::uint64_t records(std::uint64_t jobRecords) const;
    // Bytes of the records that went to the PC file, but for the last one, whose writing may have failed, and for what
    // stands before a DIF file's first record.
    std::uint64_t bytesOfRecords() const { return bytesOfRecords_; }
    std::uint32_t messages() const { return errors_; }
    const Answer& lastRefusal() const { return lastRefusal_; }
    bool wasProviderAsked() const { return providerAsked_; }
    // Records that the host has delivered.
    std::uint64_t recordsFetched() const { return recordsFetched_; }
    // The last one of them, until the next answer comes.
    std::string_view fetched() const { return fetched_; }

private:
    bool resultWritten(std::string_view value);

    bool dataEnded_ = false;
    bool dataBegun_ = false;
    bool dialogEnded_ = false;
    bool simulationCancelled_ = false;
    bool providerAsked_ = false;
    bool displayClosed_ = false;
    bool cancelled_ = false;
    bool cancelledFirst_ = false;  // before any error was told
    bool noRecords_ = false;
    bool asked_ = false;
    bool endRefused_ = false;
    bool recordRefused_ = false;
    Answer lastRefusal_;
    ExitStatus failure_ = ExitFailed;
    std::uint32_t errors_ = 0;
    std::uint32_t errorsBeforeLastWrite_ = 0;
    std::uint64_t recordsWritten_ = 0;
    std::uint64_t recordsSent_ = 0;
    std::uint64_t recordsFetched_ = 0;
    std::string_view fetched_;
    std::uint64_t displayRows_ = 0;
    std::uint64_t bytesWritten_ = 0;
    std::uint64_t bytesOfRecords_ = 0;  // without the one in hand
};

// A box that asks, rather than tells.
bool isQuestion(const emulator::MessageBox& box);

#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "checking/looking_host.h"
#include "checking/pc_file_form.h"
#include "checking/record_places.h"
#include "command_line.h"
#include "exit_status.h"
#include "host_layout.h"
#include "progress_bar.h"
#include "silent_transfer.h"

namespace checking {

// A PC file on its way to a host that only looks: the library reads and converts every record of it, and what it makes
// of each is told. A refused record does not end it: another transfer begins behind it, which takes as long as forty
// records do, so that there is a number of them that ends it.
//
// Records are counted from 0 in the file; of a DIF file the header is 0 and the row of the names 1.
class LookedSend {
public:
    enum class Ending {
        Complete,
        Stopped,  // by the number of refused records; there may be more records
        Failed,
        Cancelled
    };

    // `session` has all settings of the send, and no client. What it reaches is the looking host, which answers with
    // `layout`. `phase` heads the progress bar.
    LookedSend(const TransferLibrary& library, const PcText& pcText, const CommandLine& line, ZhstSession session,
               LookingHost& host, const HostLayout& layout, const char* phase);

    // The type of the file is known, and so its form, in front of the first record.
    std::function<void()> onBegin;
    // A record of a text-like file as it is split off.
    std::function<void(std::uint64_t index, std::string_view record)> onSplitOff;
    // What the host gets for a record.
    std::function<void(std::uint64_t index, std::string_view record, std::string_view host)> onTaken;
    // The number of the field (from 1) is 0 where the library named none; `said` is its message.
    std::function<void(std::uint64_t index, std::string_view record, std::uint32_t field, const std::string& said)>
        onRefused;
    std::function<void(std::uint64_t index)> onTooLong;

    static constexpr std::uint64_t ManyRefused = 10000;
    // Has it go through the records from this offset of the file on, which are counted from 0 there; of a DIF file it
    // stands behind the BOT line of a tuple.
    void beginAt(std::uint64_t offset) { start_ = offset; }

    Ending run(std::uint64_t mostRefused = ManyRefused);

    const PcFileForm& form() const { return form_; }
    std::uint64_t records() const { return records_; }  // that were looked at
    // What the library said last; of a run that failed the reason.
    std::string said() const;
    ExitStatus status() const;  // that this stands for
    // "record 3 (line 4)"; forward only.
    std::string nameOf(std::uint64_t index) {
        places_->moveTo(index);
        return places_->name();
    }
    // Bytes in front of it in the file.
    std::uint64_t offsetOf(std::uint64_t index) {
        places_->moveTo(index);
        return places_->offset();
    }

private:
    void begin(std::int32_t type);
    void take(std::string_view hostRecord);
    std::string_view pcRecord();
    bool stoppedAtRecord();
    void refuseLast();
    void startBehind(std::uint64_t index);
    void startReadingAt(std::uint64_t offset, bool isTuples);
    std::uint64_t lastIndex() const { return firstIndex_ + (form_.isText() ? published_ : taken_) - 1; }
    const emulator::MessageBox* messageOf(std::uint32_t id) const;

    const PcText& pcText_;
    const CommandLine& line_;
    ZhstSession session_;
    LookingHost& host_;
    const HostLayout& layout_;
    const char* phase_;
    std::optional<std::uint64_t> start_;
    SilentTransfer transfer_;
    ProgressBar bar_;
    std::filesystem::path path_;
    std::uint64_t records_ = 0, refused_ = 0;

    // From the beginning of the data on.
    PcFileForm form_;
    std::optional<RecordPlaces> places_;
    std::ifstream file_;  // of records that are not published, as they have no ends
    std::string fileRecord_;

    // Of one transfer.
    std::uint64_t firstIndex_ = 0;             // of its first record in the file
    std::uint64_t published_ = 0, taken_ = 0;  // records so far
    std::string_view last_;                    // the record that was published last
    bool isPending_ = false;                   // and has not been taken
    bool isComplete_ = false;
    bool hasData_ = false;
};

}  // namespace checking

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "checking/findings.h"
#include "checking/target_layout.h"
#include "command_line.h"
#include "exit_status.h"

namespace checking {

enum class Verdict {
    Sound,       // every record arrives as it is written
    Changes,     // all are taken, some would not arrive as written
    Refused,     // some, or all, would not be taken
    NotChecked,  // the reason is told
    Cancelled,   // by the user
};

enum class Extent {
    WholeFile,
    ToRefusedRecord,  // nothing is told but the first record that is refused, where the check ends
};

// The whole of a PC file, converted by the transfer library for the layout of its target and compared with what it
// says; nothing is sent. A refused record does not end it: it goes on behind it.
class SendCheck {
public:
    // `session` has all settings of the send, and no client.
    SendCheck(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
              const std::filesystem::path& programFolder, ZhstSession session);
    ~SendCheck();
    SendCheck(const SendCheck&) = delete;
    SendCheck& operator=(const SendCheck&) = delete;

    Verdict run(Extent extent = Extent::WholeFile);

    std::uint64_t records() const { return records_; }  // looked at
    // There may be more of them, but so many were refused already that the others were not looked at.
    bool isStopped() const { return isStopped_; }
    const std::string& reason() const { return reason_; }  // why nothing was checked
    ExitStatus status() const { return status_; }          // that this stands for
    // The library ends this send before it makes a request, and says why.
    bool isToldBySend() const { return isToldBySend_; }
    const Findings& findings() const { return findings_; }
    const HostLayout& layout() const { return target_.layout; }

private:
    class Run;

    Verdict checkRecords();
    bool learnTarget();
    void tellUnknownFields();

    const TransferLibrary& library_;
    const PcText& pcText_;
    const CommandLine& line_;
    std::filesystem::path programFolder_;
    ZhstSession session_;
    Extent extent_ = Extent::WholeFile;
    Target target_;
    Findings findings_;
    std::uint64_t records_ = 0;
    std::string reason_;
    ExitStatus status_ = ExitFailed;
    bool isStopped_ = false;
    bool isToldBySend_ = false;
};

}  // namespace checking

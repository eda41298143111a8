#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "checking/findings.h"
#include "checking/host_text.h"
#include "checking/pc_file_form.h"
#include "checking/received_records.h"
#include "checking/written_record.h"
#include "command_line.h"
#include "host_layout.h"
#include "pc_text.h"
#include "transfer_library.h"

namespace checking {

class LookedSend;

// The form of the PC file that a receive writes.
PcFileForm receivedForm(ZhstSession session, const emulator::PcSetup& pc, const HostLayout& layout);

// Reads the PC file of a receive back: its bytes against those that were written, and its records, as another program
// reads them and as the transfer library would send them, against those of the host.
class ReceiveCheck {
public:
    // `session` is that of the receive, which has no client any more; `layout` and `records` are what went by.
    ReceiveCheck(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
                 const std::filesystem::path& programFolder, ZhstSession session, const HostLayout& layout,
                 ReceivedRecords& records);

    // False when not all was looked at; then there is a reason.
    bool run();

    std::uint64_t found() const { return findings_.changed(); }
    const Findings& findings() const { return findings_; }
    const std::string& reason() const { return reason_; }

private:
    // What the library makes of the bytes of one record.
    struct Sent {
        std::uint64_t count = 0;
        std::string host;     // of the last one, unless it was refused
        std::string refusal;  // what the library said of it
    };

    void beginFile();
    bool send();
    void describe(const std::filesystem::path& description) const;
    void take(std::uint64_t offset, std::string_view host, const std::string& refusal);
    bool beginRecord();
    void endRecord(bool isSent);
    void compareSent();
    void compareSentField(const HostColumn& column, std::size_t at);
    void tellOfRecord(Fault fault, const std::string& reason);
    std::string placeOf(std::uint64_t index) const;

    const TransferLibrary& library_;
    const PcText& pcText_;
    const CommandLine& line_;
    std::filesystem::path programFolder_;
    ZhstSession session_;
    const HostLayout& layout_;
    ReceivedRecords& records_;
    PcFileForm form_;
    Findings findings_;
    HostText texts_;
    WrittenRecord written_;
    std::string reason_;
    std::filesystem::path path_;
    std::ifstream file_;

    // The record in hand: its place in the file, what stands there, what becomes of it.
    bool isOpen_ = false;
    std::uint64_t index_ = 0, offset_ = 0, fileLine_ = 1;
    std::string bytes_;
    Sent sent_;
};

}  // namespace checking

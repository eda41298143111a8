#include "tally.h"

#include <optional>

namespace {

namespace setting = zhst::setting;
namespace value = zhst::value;

// The amounts of one transfer.
class Amounts {
public:
    Amounts(const TerminalUser& user, const PcText& pcText, ZhstSession session, bool sending)
        : user_(user), pcText_(pcText), session_(session), sending_(sending) {
        records_ = user.watch().records(static_cast<std::uint32_t>(number(setting::JobRecordsReceived)));
    }

    std::string records() const { return counted(records_, "record"); }
    bool any() const { return records_ > 0; }
    bool areKept() const { return !user_.watch().isEndRefused(); }

    // The emulator writes files in pieces, and a disk may fill up behind records that it had taken.
    bool arePartlyLost() const {
        const std::optional<std::uint64_t> inFile = bytes();
        return !sending_ && toFile() && any() && (!inFile || *inFile < user_.watch().bytesOfRecords());
    }
    std::string lost() const {
        const std::optional<std::uint64_t> inFile = bytes();
        if (!inFile) return "none of " + records() + " are in " + target() + ", which was left as it was";
        return "only " + counted(*inFile, "byte") + " of " + records() + " are in " + target();
    }

    // "249 records, 12,345 bytes, countries.csv"; the bytes only where they are known.
    std::string all() const {
        const std::optional<std::uint64_t> amount = bytes();
        return records() + (amount ? ", " + counted(*amount, "byte") : "") + ", " + target();
    }

    void put(Tally& tally) const {
        const std::string file = text(setting::PcFileName);
        tally.records = records_;
        tally.bytes = bytes();
        if (sending_ || (toFile() && file != "-")) tally.pcFile = file;
        tally.hostFile = text(setting::HostFileName);
    }

    std::string target() const {
        const std::string file = text(setting::PcFileName);
        if (sending_) return (file == "-" ? "standard input" : file) + " to " + text(setting::HostFileName);
        if (!toFile()) return number(setting::ReceiveOutput) == value::ToDisplay ? "the screen" : "no output";
        return file == "-" ? "standard output" : file;
    }

private:
    std::int32_t number(std::uint32_t id) const { return emulator::number(session_, id); }
    std::string text(std::uint32_t id) const { return pcText_.toTerminal(emulator::text(session_, id)); }
    bool toFile() const {
        const std::int32_t output = number(setting::ReceiveOutput);
        return output == value::ToPcFile || output == value::ToSpreadsheet;
    }

    std::optional<std::uint64_t> bytes() const {
        if (sending_) return bytesRead();
        return toFile() ? emulator::bytesWritten(emulator::text(session_, setting::PcFileName)) : std::nullopt;
    }

    // As far as the file was read and done with: nothing is known of a read that was not.
    std::optional<std::uint64_t> bytesRead() const {
        const auto position = static_cast<std::uint32_t>(number(setting::ProgressCount));
        return position == 0 && any() ? std::nullopt : std::optional<std::uint64_t>(position);
    }

    const TerminalUser& user_;
    const PcText& pcText_;
    ZhstSession session_;
    bool sending_;
    std::uint64_t records_ = 0;
};

std::string stopped(const std::string& how, const Amounts& amounts) {
    if (!amounts.any()) return how + " before any record, " + amounts.target();
    return how + " after " + amounts.all() + (amounts.areKept() ? "" : "; the host kept none of them");
}

Tally endingOf(const TerminalUser& user, const PcText& pcText, const Amounts& amounts, ZhstSession session) {
    if (!user.leftFile().empty())
        return {"cancelled: " + pcText.toTerminal(user.leftFile()) + " exists and is as it was", ExitCancelled};
    switch (user.watch().ending()) {
        case Ending::Complete:
            if (emulator::number(session, setting::ConnectionType) == value::DemonstrationConnection) {
                return {"complete: " + amounts.records() + " of the demonstration, the screen", ExitComplete};
            }
            return {"complete: " + amounts.all(), ExitComplete};
        case Ending::Simulated:
            return {"complete: a demonstration, nothing was transferred", ExitComplete};
        case Ending::NoRecords:
            return {"failed: 0 records, " + amounts.target() + " was not written", ExitFailed};
        case Ending::Declined:
            return {"cancelled: not confirmed (--answer replace confirms), " + amounts.target(), ExitCancelled};
        case Ending::Closed:
            return {stopped("closed", amounts), ExitComplete};
        case Ending::Cancelled:
            return {stopped("cancelled", amounts), ExitCancelled};
        case Ending::NotKept:
            return {stopped("failed", amounts), ExitHostRefused};
        case Ending::FailedAfter:
            if (amounts.arePartlyLost()) break;
            return {"failed: " + amounts.all() + "; see the message above", user.watch().failure()};
        case Ending::Failed:
            break;
    }
    if (amounts.arePartlyLost()) return {"failed: " + amounts.lost(), ExitLocalFile};
    return {stopped("failed", amounts), user.watch().failure()};
}

}  // namespace

Tally transferTally(const TerminalUser& user, const PcText& pcText, ZhstSession session, bool sending) {
    const Amounts amounts(user, pcText, session, sending);
    Tally tally = endingOf(user, pcText, amounts, session);
    amounts.put(tally);
    return tally;
}

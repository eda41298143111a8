#include "check_before_send.h"

#include <iostream>

#include "checking/send_check.h"
#include "code_page_note.h"
#include "console.h"
#include "progress_bar.h"
#include "questions.h"

namespace {

using checking::SendCheck;
using checking::Verdict;

constexpr questions::Choice SendOrNot[] = {{"send", 10}, {"no", 2}};

// "of 12 records 2 would be refused, 3 things would not arrive as written"
std::string summary(const SendCheck& check) {
    if (check.records() == 0) return "no record would be sent";
    std::string text = (check.isStopped() ? "of the first " : "of ") + counted(check.records(), "record") + " ";
    const std::uint64_t refused = check.findings().refused(), changed = check.findings().changed();
    if (refused > 0) text += grouped(refused) + " would be refused" + (changed > 0 ? ", " : "");
    if (changed > 0) text += counted(changed, "thing") + " would not arrive as written";
    if (check.isStopped()) text += "; those behind them were not looked at";
    return text;
}

bool isWanted(const CommandLine& line) {
    if (line.allowChanges) return true;
    using console::Stream;
    if (!console::isTerminal(Stream::Input) || !console::isTerminal(Stream::Error)) return false;
    std::cerr << "z7xfer: is it to be sent like this?" << std::endl;
    return questions::goesOn(SendOrNot, questions::ask(SendOrNot, std::nullopt));
}

Tally checkedOnly(const SendCheck& check, Verdict verdict) {
    if (verdict == Verdict::Sound)
        return {"checked: " + counted(check.records(), "record") + ", all would arrive as written", ExitComplete};
    if (verdict == Verdict::NotChecked) return {"not checked: " + check.reason(), check.status()};
    return {"checked: " + summary(check), ExitBadData};
}

}  // namespace

std::optional<Tally> checkBeforeSend(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
                                     const std::filesystem::path& programFolder, ZhstSession session, Notes& notes) {
    SendCheck check(library, pcText, line, programFolder, session);
    const Verdict verdict = check.run();
    if (verdict == Verdict::Cancelled)
        return Tally{"cancelled while the file was checked; nothing was sent", ExitCancelled};
    const auto page = static_cast<std::uint32_t>(emulator::number(session, zhst::setting::HostCodePage));
    if (const std::optional<Note> note = codePageNote(check.layout(), page)) notes.tell(*note);
    check.findings().print(line.checkOnly ? std::cout : std::cerr);
    std::cout.flush();
    if (line.checkOnly) return checkedOnly(check, verdict);
    if (verdict == Verdict::NotChecked && !check.isToldBySend())
        std::cerr << "z7xfer: not checked: " << check.reason() << std::endl;
    if (verdict == Verdict::Sound || verdict == Verdict::NotChecked) return std::nullopt;
    if (verdict == Verdict::Refused) return Tally{"not sent: " + summary(check), ExitBadData};
    std::cerr << "z7xfer: " << summary(check) << std::endl;
    if (isWanted(line)) return std::nullopt;
    return Tally{"not sent: nobody said that it may change (--allow-changes does)", ExitBadData};
}

#include "checking/findings.h"

#include <string_view>

#include "pc_text.h"
#include "progress_bar.h"

namespace checking {
namespace {

struct FaultRow {
    bool isRefusal;
    std::string_view title, advice;
};

constexpr FaultRow faults[] = {
#define CHECKING_FAULT(name, isRefusal, title, advice) {isRefusal, title, advice},
    CHECKING_FAULTS(CHECKING_FAULT)
#undef CHECKING_FAULT
};

const FaultRow& rowOf(Fault fault) { return faults[static_cast<std::size_t>(fault)]; }

// A text in quotes, its end left out where it is long.
std::string quoted(const std::string& text) {
    constexpr std::size_t Longest = 60;
    const std::string shown = withoutControls(text);
    if (shown.size() <= Longest) return '"' + shown + '"';
    std::size_t end = Longest;
    while (end > 0 && (static_cast<unsigned char>(shown[end]) & 0xC0) == 0x80) --end;
    return '"' + shown.substr(0, end) + "\"...";
}

void printFinding(std::ostream& out, const Finding& finding, std::string_view becomes) {
    const FaultRow& row = rowOf(finding.fault);
    out << (finding.place.empty() ? "the file" : finding.place);
    if (!finding.field.empty())
        out << ", field " << finding.field;
    else if (!row.isRefusal)
        out << ", " << row.title;
    if (!finding.text.empty()) out << ": " << quoted(finding.text);
    if (row.isRefusal)
        out << " is refused";
    else if (!finding.field.empty())
        out << ' ' << becomes << ' ' << quoted(finding.stored);
    out << "\n    " << withoutControls(finding.reason) << "\n    to do: " << row.advice;
    if (!finding.option.empty()) out << ", or send with " << finding.option;
    out << '\n';
}

}  // namespace

bool isRefusal(Fault fault) { return rowOf(fault).isRefusal; }
std::string_view adviceOf(Fault fault) { return rowOf(fault).advice; }

void Findings::print(std::ostream& out) const {
    for (const Finding& finding : ofFile_) printFinding(out, finding, becomes_);
    for (const Finding& finding : told_) printFinding(out, finding, becomes_);
    const std::uint64_t untold = refused_ + changed_ - ofFile_.size() - told_.size();
    if (untold == 0) return;
    out << "and " << grouped(untold) << " more; in all:\n";
    for (std::size_t column = 0; column < counts_.size(); ++column) {
        std::string line;
        for (std::size_t fault = 0; fault < FaultCount; ++fault) {
            const std::uint64_t count = counts_[column][fault];
            if (count > 0)
                line += (line.empty() ? "" : ", ") + std::string(faults[fault].title) + " (" + grouped(count) + ")";
        }
        if (line.empty()) continue;
        out << "    " << (column < columns_.size() ? columns_[column].name : "the record") << ": " << line << '\n';
    }
}

}  // namespace checking

#include "checking/looked_send.h"

#include <algorithm>
#include <iterator>

#include "Z7XFRPCS/dialogs.h"
#include "Z7XFRPCS/messages.h"
#include "Z7XFRPCS/settings.h"
#include "console.h"
#include "emulator/catalogue.h"

namespace checking {
namespace {

namespace setting = zhst::setting;
namespace catalogue = emulator::catalogue;

constexpr std::uint32_t ToHost = 1;

// The item of the monitor store that a sent record goes to.
constexpr std::string_view RecordItem = "XUFI";

// Two empty tuples, for the header and the names of the columns, which the library skips.
constexpr char TuplesToSkip[] = "-1,0\r\nBOT\r\n-1,0\r\nBOT\r\n";
constexpr std::uint64_t SkippedTuples = 2;

constexpr std::int32_t NoType = -1;

// The PC file type that a command of the progress dialog shows.
std::int32_t shownType(std::uint32_t command) {
    constexpr std::uint32_t commands[] = {
#define PC_FILE_TYPE(number, name, shortName, command, code, form, separator, quotes, hex, meaning) command,
        ZHST_PC_FILE_TYPES(PC_FILE_TYPE)
#undef PC_FILE_TYPE
    };
    const auto* place = std::find(std::begin(commands), std::end(commands), command);
    return place == std::end(commands) ? NoType : static_cast<std::int32_t>(place - std::begin(commands));
}

}  // namespace

LookedSend::LookedSend(const TransferLibrary& library, const PcText& pcText, const CommandLine& line,
                       ZhstSession session, LookingHost& host, const HostLayout& layout, const char* phase)
    : pcText_(pcText),
      line_(line),
      session_(session),
      host_(host),
      layout_(layout),
      phase_(phase),
      transfer_(library, session),
      bar_(!line.quiet && console::isTerminal(console::Stream::Error)),
      path_(emulator::nativePath(emulator::text(session, setting::PcFileName))) {
    host_.setLayout(&layout_);
    host_.onRecord = [this](std::string_view record) { take(record); };
    transfer_.onStoreWrite = [this](std::string_view code, std::string_view value) {
        if (code != RecordItem) return;
        last_ = value;
        isPending_ = !value.empty();
        ++published_;
        if (onSplitOff) onSplitOff(lastIndex(), value);
    };
    transfer_.onProgressCommand = [this](std::uint32_t command) {
        if (const std::int32_t type = shownType(command); type != NoType) begin(type);
        if (command == ZhstDataBegins) hasData_ = true;
        if (command == ZhstAllDataTransferred) isComplete_ = true;
    };
    transfer_.onPump = [this] {
        if (console::interrupted()) transfer_.cancel();
        bar_.advance(records_, ProgressBar::Unit::Records);
    };
}

// With the type the form of the file is known, and where its first record stands.
void LookedSend::begin(std::int32_t type) {
    if (places_) return;
    const bool toSource = emulator::number(session_, setting::HostFileType) == zhst::value::SourceFile &&
                          emulator::number(session_, setting::UseDescriptionFile) != 1;
    form_ = pcFileForm(session_, line_.pc, type, toSource);
    places_.emplace(path_, form_, layout_.recordLength(), start_.value_or(0));
    if (!form_.isText()) {
        file_.open(path_, std::ios::binary);
        file_.seekg(static_cast<std::streamoff>(start_.value_or(0)));
    } else if (start_) {
        firstIndex_ = 0;
    } else if (form_.form == RecordForm::Tuples) {
        firstIndex_ = SkippedTuples;
    } else {
        firstIndex_ = static_cast<std::uint64_t>(std::max(emulator::number(session_, setting::StartRecord), 1)) - 1;
    }
    if (onBegin) onBegin();
}

LookedSend::Ending LookedSend::run(std::uint64_t mostRefused) {
    bar_.begin();
    bar_.phase(phase_);
    if (start_) startReadingAt(*start_, emulator::number(session_, setting::SendFileType) == ZhstDif);
    bool goesOn = true;
    while (goesOn && refused_ < mostRefused) {
        published_ = taken_ = 0;
        isPending_ = isComplete_ = hasData_ = false;
        transfer_.run(ToHost);
        goesOn = !console::interrupted() && stoppedAtRecord();
    }
    bar_.end();
    emulator::setReadingStart({});
    if (console::interrupted()) return Ending::Cancelled;
    if (goesOn) return Ending::Stopped;
    return isComplete_ ? Ending::Complete : Ending::Failed;
}

const emulator::MessageBox* LookedSend::messageOf(std::uint32_t id) const {
    const auto& messages = transfer_.messages();
    const auto found = std::find_if(messages.begin(), messages.end(), [id](const auto& box) { return box.id == id; });
    return found == messages.end() ? nullptr : &*found;
}

std::string LookedSend::said() const {
    if (transfer_.messages().empty()) return "the transfer library ended without a word";
    return transfer_.said(pcText_);
}

ExitStatus LookedSend::status() const {
    return transfer_.messages().empty() ? ExitFailed : statusOf(transfer_.messages().front(), 0);
}

// --- What was taken ------------------------------------------------------------------------------------------------

std::string_view LookedSend::pcRecord() {
    if (form_.isText()) return last_;
    fileRecord_.resize(layout_.recordLength());
    file_.read(fileRecord_.data(), static_cast<std::streamsize>(fileRecord_.size()));
    fileRecord_.resize(static_cast<std::size_t>(file_.gcount()));
    return fileRecord_;
}

void LookedSend::take(std::string_view hostRecord) {
    ++taken_;
    ++records_;
    isPending_ = false;
    const std::string_view record = pcRecord();
    onTaken(lastIndex(), record, hostRecord);
}

// --- What was refused ----------------------------------------------------------------------------------------------

// True when the run ended at a record that was refused, and another can begin behind it.
bool LookedSend::stoppedAtRecord() {
    if (isComplete_ || !hasData_ || !places_) return false;
    const bool isLong = messageOf(zhst::message::RecordTooLong) != nullptr;
    const bool isRefused = form_.isText() ? isPending_ : !transfer_.messages().empty();
    if (!isLong && !isRefused) return false;
    ++records_;
    ++refused_;
    if (isLong) {
        ++published_;
        onTooLong(lastIndex());
    } else {
        refuseLast();
    }
    startBehind(lastIndex());
    return true;
}

void LookedSend::refuseLast() {
    if (!form_.isText()) ++taken_;
    const std::string_view record = pcRecord();
    const emulator::MessageBox* box = messageOf(catalogue::messageId(zhst::text::BadNumber));
    const bool isNamed = box != nullptr && box->inserts.size() == 2;
    const auto field = isNamed ? static_cast<std::uint32_t>(std::stoul(box->inserts[1])) : 0;
    onRefused(lastIndex(), record, field, said());
}

// The library goes on at the first record that it sees; tuples it skips stand in front.
void LookedSend::startReadingAt(std::uint64_t offset, bool isTuples) {
    emulator::setReadingStart({isTuples ? TuplesToSkip : "", offset});
    if (!isTuples) emulator::set(session_, setting::StartRecord, 1);
}

void LookedSend::startBehind(std::uint64_t index) {
    places_->moveTo(index + 1);
    firstIndex_ = index + 1;
    startReadingAt(places_->offset(), form_.form == RecordForm::Tuples);
    if (form_.isText()) return;
    file_.clear();
    file_.seekg(static_cast<std::streamoff>(places_->offset()));
}

}  // namespace checking

#include "terminal_user.h"

#include <algorithm>
#include <iostream>
#include <string_view>
#include <utility>

#include "Z7XFRPCS/dialogs.h"
#include "Z7XFRPCS/text_display.h"
#include "checking/added_records.h"
#include "checking/host_text.h"
#include "checking/receive_check.h"
#include "code_page_note.h"
#include "console.h"
#include "emulator/setting_rows.h"
#include "environment/environment.h"
#include "process.h"

namespace {

namespace setting = zhst::setting;
using console::Stream;

const char* phaseWords(ZhstProgressCommand command) {
    switch (command) {
        case ZhstStarting:
            return "starting";
        case ZhstCountingRecords:
            return "counting the records";
        case ZhstPreparingConversion:
            return "preparing the conversion";
        case ZhstOptionsRequest:
            return "sending the options";
        case ZhstTransferRequest:
            return "sending the request";
        case ZhstReadingFields:
            return "reading the field descriptions";
        default:
            return nullptr;
    }
}

// The request of a send that was cancelled ends like that of one that is complete, so the sample host is told beside
// it.
void tellHostWhetherWhole(bool whole) { environment::set("Z7X_SEND_IS_WHOLE", whole ? "1" : "0"); }

// The lines of a text, every one behind the first indented.
std::string indented(std::string_view text) {
    text = text.substr(0, text.find_last_not_of("\r\n ") + 1);
    std::string result;
    for (const char byte : text) {
        if (byte == '\n') {
            result += "\n    ";
        } else if (byte != '\r') {
            result += byte;
        }
    }
    return result;
}

// Message texts hold lines, but what came from a host may hold anything.
std::string withoutControlsInLines(const std::string& text) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
        result += withoutControls(std::string_view(text).substr(start, end - start)) + "\n";
        start = end + 1;
    }
    return result + withoutControls(std::string_view(text).substr(start));
}

}  // namespace

TerminalUser::TerminalUser(const CommandLine& line, const PcText& pcText, ZhstSession session, Notes& notes)
    : line_(line),
      pcText_(pcText),
      session_(session),
      notes_(notes),
      reasons_(watch_, session),
      bar_(false),
      table_(std::cout, Pager::isWanted()),
      pager_(table_) {
    if (line.header && line.command == Command::Receive) emulator::setHeading([this] { return header(); });
    if (line.verify) received_ = std::make_unique<checking::ReceivedRecords>();
    emulator::onStoreWrite([this](std::string_view code, std::string_view value) { storeWritten(code, value); });
}

std::string TerminalUser::header() const {
    const bool tabs = emulator::number(session_, setting::ReceiveFileType) == ZhstTabDelimited;
    return names_.header(tabs ? '\t' : line_.pc.listSeparator);
}

// Three values come for each of millions of records, descriptions once a transfer.
void TerminalUser::storeWritten(std::string_view code, std::string_view value) {
    if (watch_.storeWritten(code, value)) {
        if (!sending_) recordWritten(value);
    } else if (code.ends_with("TI")) {
        names_.storeWritten(code, value);
        reasons_.storeWritten(code, value);
    } else if (received_ && code == "XDFI") {
        received_->keepTrailer(value);
    }
}

// The store hears of a record before the file does.
void TerminalUser::recordWritten(std::string_view record) {
    if (losses_) losses_->look(record, watch_.fetched());
    if (received_) received_->keep(watch_.fetched(), record);
    if (leftFile_.empty()) emulator::releaseFilesWithNextWrite();
    bar_.advance(watch_.recordsSeen(), ProgressBar::Unit::Records);
}

// --- Messages ----------------------------------------------------------------------------------------------------

std::int32_t TerminalUser::showMessage(const emulator::MessageBox& box) {
    obeyInterrupt();
    bar_.hide();
    pager_.writeRest();
    std::cout.flush();
    printMessage(box);
    const std::int32_t pressed = answer(box);
    if (!isQuestion(box) || !questions::goesOn(questions::choicesOf(box), pressed)) watch_.message(box);
    bar_.show();
    return pressed;
}

void TerminalUser::printMessage(const emulator::MessageBox& box) {
    messages_.push_back({box.id, pcText_.toTerminal(box.text)});
    std::cerr << "z7xfer: message " << box.id << ": " << withoutControlsInLines(indented(pcText_.toTerminal(box.text)))
              << std::endl;
    printBelow(std::cerr, reasons_.of(box));
}

std::int32_t TerminalUser::answer(const emulator::MessageBox& box) {
    if (isQuestion(box) && line_.noClobber) return leaveFile(box);
    if (isQuestion(box)) return questions::ask(questions::choicesOf(box), line_.answer);
    constexpr std::int32_t Ok = 1;
    return line_.answer ? line_.answer->button.value_or(Ok) : Ok;
}

// A PC file beside a description of another one would be sent by that: either both are written or none is.
std::int32_t TerminalUser::leaveFile(const emulator::MessageBox& box) {
    leftFile_ = box.file;
    if (cancel_) cancel_();
    return questions::choicesOf(box).back().button;
}

bool TerminalUser::connectionDialog() {
    std::cerr << "z7xfer: the connection settings are not complete; empty are:";
    for (const emulator::SettingRow& row : emulator::settingRows) {
        const bool needed = row.number == setting::HostSystemName || row.number == setting::ConnectionParam248 ||
                            row.number == setting::ConnectionParam250 || row.number == setting::ConnectionParam512;
        if (needed && emulator::text(session_, row.number).empty()) std::cerr << ' ' << row.name;
    }
    const bool accepted = !line_.answer || !line_.answer->declines();
    std::cerr << (accepted ? "; trying with what there is" : "") << std::endl;
    if (!accepted) watch_.cancelled();
    return accepted;
}

// --- Waiting -----------------------------------------------------------------------------------------------------

void TerminalUser::pump() {
    obeyInterrupt();
    if (sending_) {
        const auto done = static_cast<std::uint32_t>(emulator::number(session_, setting::ProgressCount));
        bar_.advance(done, ProgressBar::Unit::Bytes);
    }
    turnPage();
}

void TerminalUser::obeyInterrupt() {
    if (!console::interrupted() || watch_.isCancelled()) return;
    watch_.cancelled();
    if (cancel_) cancel_();
    // A transfer to the display looks at its window only.
    if (display_ == Display::None) return;
    watch_.displayClosed();
    emulator::closeDisplay();
}

void TerminalUser::turnPage() {
    const bool isLast = display_ == Display::Ended;
    if (!isLast && display_ != Display::PageFull) return;
    const bool left = Pager::isWanted() && pager_.show(isLast) == Pager::Wish::Leave;
    obeyInterrupt();
    if (display_ == Display::None || watch_.isCancelled()) return;
    if (left && !isLast) watch_.displayClosed();
    isLast || left ? emulator::closeDisplay() : emulator::requestNextPage();
}

// --- Progress dialog ---------------------------------------------------------------------------------------------

bool TerminalUser::barWanted() const {
    if (line_.quiet || !console::isTerminal(Stream::Error)) return false;
    // Data on the same terminal would run into the bar.
    return sending_ || emulator::text(session_, setting::PcFileName) != "-" || !console::isTerminal(Stream::Output);
}

void TerminalUser::progressCreated(std::uint32_t direction, std::uint32_t) {
    sending_ = direction == ZhstToHost;
    if (sending_) tellHostWhetherWhole(false);
    bar_ = ProgressBar(barWanted());
    bar_.begin();
}

void TerminalUser::progressCommand(std::uint32_t command) {
    watch_.progressCommand(command);
    if (command == ZhstDataBegins) dataBegins();
    if (command == ZhstAllDataTransferred) allDataTransferred();
    if (const char* words = phaseWords(static_cast<ZhstProgressCommand>(command))) bar_.phase(words);
}

// The host has described its fields, and no record has gone over.
void TerminalUser::dataBegins() {
    const std::int32_t page = emulator::number(session_, setting::HostCodePage);
    if (!sending_ && !received_ && checking::HostText::canRead(page))
        losses_ = std::make_unique<checking::LossWatch>(checking::receivedForm(session_, line_.pc, layout()), layout());
    tell(codePageNote(layout(), static_cast<std::uint32_t>(page)));
}

void TerminalUser::tellLoss() {
    if (!losses_) return;
    tell(losses_->note());
    tell(joinedNote());
}

std::optional<Note> TerminalUser::joinedNote() const {
    const std::string name = emulator::text(session_, setting::PcFileName);
    const std::filesystem::path path = emulator::nativePath(name);
    std::error_code error;
    const std::uintmax_t size =
        std::filesystem::is_regular_file(path, error) ? std::filesystem::file_size(path, error) : 0;
    const std::uint64_t written = emulator::bytesWritten(name).value_or(0);
    if (error || written == 0 || size <= written) return std::nullopt;
    const std::string joined =
        checking::joinedWithWhatWasThere(path, losses_->form(), layout().recordLength(), size - written);
    if (joined.empty()) return std::nullopt;
    return Note{pcText_.toTerminal(name) + " existed, and " + joined,
                "to do: " + std::string(checking::adviceOf(checking::Fault::RecordsJoined))};
}

void TerminalUser::tell(const std::optional<Note>& note) {
    if (!note) return;
    bar_.hide();
    notes_.tell(*note);
    bar_.show();
}

// Before the library ends the request, in whatever way the transfer ends.
void TerminalUser::allDataTransferred() {
    if (sending_ && watch_.messages() == 0) tellHostWhetherWhole(true);
    if (!sending_ && leftFile_.empty()) emulator::releaseFiles();  // of no records comes an empty file
}

void TerminalUser::progressTotal(std::uint32_t total, std::uint32_t unit) {
    bar_.total(total, unit == ZhstBytes ? ProgressBar::Unit::Bytes : ProgressBar::Unit::Records);
}

void TerminalUser::progressHidden(bool hidden) { hidden ? bar_.hide() : bar_.show(); }

void TerminalUser::progressDestroyed() { bar_.end(); }

// --- Text display ------------------------------------------------------------------------------------------------

void TerminalUser::displayCreated(const std::string& title) {
    displayTitle_ = title;
    display_ = Display::Filling;
}

void TerminalUser::displayBegin(std::int32_t) { table_.clear(); }

void TerminalUser::displayColumn(std::uint32_t index, const std::string& title, std::uint32_t width,
                                 std::uint32_t alignment) {
    table_.addColumn(index, pcText_.toTerminal(title), width, alignment == ZhstAlignRight);
}

void TerminalUser::displayRow() {
    watch_.displayRow();
    table_.startRow();
}

void TerminalUser::displayCell(std::uint32_t, std::uint32_t column, const std::string& text) {
    table_.setCell(column, pcText_.toTerminal(text));
}

void TerminalUser::displayStatus(const std::string& text) {
    table_.finishRow();
    // The title is the status while rows arrive; every other text asks the user for something.
    display_ = text == displayTitle_ ? Display::Filling : Display::PageFull;
    if (display_ == Display::PageFull) std::cout.flush();
}

void TerminalUser::displayEnd() {
    watch_.displayEnded();
    table_.end();
    display_ = Display::Ended;
}

void TerminalUser::displayDestroyed() {
    table_.finishRow();
    pager_.writeRest();
    std::cout.flush();
    display_ = Display::None;
}

// --- Shell -------------------------------------------------------------------------------------------------------

std::int32_t TerminalUser::shellExecute(const std::string& file, const std::string& parameters) {
    const std::filesystem::path path = emulator::nativePath(parameters.empty() ? file : parameters);
    if (process::hasDesktop()) return process::openOnDesktop(path);
    bar_.hide();
    if (!line_.quiet) std::cerr << "z7xfer: ready for the spreadsheet program: " << path.string() << std::endl;
    return 33;
}

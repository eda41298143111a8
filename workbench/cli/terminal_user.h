#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "checking/loss_watch.h"
#include "checking/received_records.h"
#include "command_line.h"
#include "emulator/emulator.h"
#include "field_names.h"
#include "notes.h"
#include "pager.h"
#include "pc_text.h"
#include "progress_bar.h"
#include "questions.h"
#include "reasons.h"
#include "text_table.h"
#include "transfer_watch.h"

// A message as it was shown.
struct ShownMessage {
    std::uint32_t id = 0;
    std::string text;  // UTF-8
};

// The person at the terminal, as the emulator knows one: messages on standard error, the text display on standard
// output, a progress bar where both may be seen, Ctrl-C for the cancel button.
class TerminalUser final : public emulator::UserInterface {
public:
    // All arguments outlive it.
    TerminalUser(const CommandLine& line, const PcText& pcText, ZhstSession session, Notes& notes);

    // What Ctrl-C does, once, from inside a pump.
    void onCancel(std::function<void()> cancel) { cancel_ = std::move(cancel); }

    const TransferWatch& watch() const { return watch_; }
    // By its PC name; the file that exists and was left, for which the transfer ended. Empty when there was none.
    const std::string& leftFile() const { return leftFile_; }
    const std::vector<ShownMessage>& messages() const { return messages_; }
    const Reasons& reasons() const { return reasons_; }
    // When the transfer is over: once, that a record went by which would not be read back as the host has it; and that
    // records were added where none begins.
    void tellLoss();
    // Those of a receive that is to be verified; else null.
    checking::ReceivedRecords* receivedRecords() { return received_.get(); }
    // What the host has described.
    const HostLayout& layout() const { return reasons_.layout(); }

    std::int32_t showMessage(const emulator::MessageBox& box) override;
    bool connectionDialog() override;
    void pump() override;
    void progressCreated(std::uint32_t direction, std::uint32_t mode) override;
    void progressCommand(std::uint32_t command) override;
    void progressTotal(std::uint32_t total, std::uint32_t unit) override;
    void progressHidden(bool hidden) override;
    void progressDestroyed() override;
    void displayCreated(const std::string& title) override;
    void displayBegin(std::int32_t rowsPerPage) override;
    void displayColumn(std::uint32_t index, const std::string& title, std::uint32_t width,
                       std::uint32_t alignment) override;
    void displayRow() override;
    void displayCell(std::uint32_t row, std::uint32_t column, const std::string& text) override;
    void displayStatus(const std::string& text) override;
    void displayEnd() override;
    void displayDestroyed() override;
    std::int32_t shellExecute(const std::string& file, const std::string& parameters) override;

private:
    enum class Display { None, Filling, PageFull, Ended };

    std::optional<Note> joinedNote() const;
    bool barWanted() const;
    std::string header() const;
    void storeWritten(std::string_view code, std::string_view value);
    void recordWritten(std::string_view record);
    void printMessage(const emulator::MessageBox& box);
    std::int32_t answer(const emulator::MessageBox& box);
    std::int32_t leaveFile(const emulator::MessageBox& box);
    void dataBegins();
    void tell(const std::optional<Note>& note);
    void allDataTransferred();
    void obeyInterrupt();
    void turnPage();

    const CommandLine& line_;
    const PcText& pcText_;
    ZhstSession session_;
    Notes& notes_;
    std::function<void()> cancel_;
    TransferWatch watch_;
    std::string leftFile_;
    std::vector<ShownMessage> messages_;
    FieldNames names_;
    Reasons reasons_;
    std::unique_ptr<checking::ReceivedRecords> received_;
    std::unique_ptr<checking::LossWatch> losses_;
    ProgressBar bar_;
    TextTable table_;
    Pager pager_;
    Display display_ = Display::None;
    std::string displayTitle_;
    bool sending_ = false;
};

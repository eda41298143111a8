#include "support/recording_user.h"

std::vector<std::uint32_t> RecordingUser::messageIds() const {
    std::vector<std::uint32_t> ids;
    for (const auto& message : messages) ids.push_back(message.id);
    return ids;
}

void RecordingUser::readOn() {
    if (!display.open) return;
    if (display.ended) return emulator::closeDisplay();
    ++display.pages;
    emulator::requestNextPage();
}

std::int32_t RecordingUser::showMessage(const emulator::MessageBox& box) {
    messages.push_back(box);
    return onMessage ? onMessage(box) : answer;
}

bool RecordingUser::connectionDialog() {
    ++connectionDialogs;
    return acceptConnectionDialog;
}

void RecordingUser::pump() {
    ++pumps;
    if (onPump) return onPump();
    readOn();
}

void RecordingUser::progressCreated(std::uint32_t, std::uint32_t mode) { progressModes.push_back(mode); }

void RecordingUser::progressCommand(std::uint32_t command) {
    progressCommands.push_back(command);
    if (onProgressCommand) onProgressCommand(command);
}

void RecordingUser::progressNames(const std::string& pcName, const std::string& hostName) {
    progressPcName = pcName;
    progressHostName = hostName;
}

void RecordingUser::progressTotal(std::uint32_t total, std::uint32_t unit) {
    progressTotalAmount = total;
    progressUnit = unit;
}

void RecordingUser::displayCreated(const std::string& title) {
    display = Display{};
    display.title = title;
    display.open = true;
}

void RecordingUser::displayColumn(std::uint32_t index, const std::string& title, std::uint32_t width,
                                  std::uint32_t alignment) {
    display.columns[index] = {title, width, alignment};
}

// Cells arrive row by row; the row's number is the emulator's own.
void RecordingUser::displayCell(std::uint32_t, std::uint32_t column, const std::string& text) {
    if (display.rows.empty()) display.rows.emplace_back();
    display.rows.back()[column] = text;
}

std::int32_t RecordingUser::shellExecute(const std::string& file, const std::string& parameters) {
    shellCalls.emplace_back(file, parameters);
    return shellResult;
}

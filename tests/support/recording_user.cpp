#include "support/recording_user.h"

std::vector<std::uint32_t> RecordingUser::messageIds() const {
    std::vector<std::uint32_t> ids;
    for (const auto& message : messages) ids.push_back(message.id);
    return ids;
}

void RecordingUser::readOn() {
    if (!display.open) return;
    if (display.ended) return emulator::closeDisplay();
    emulator::requestNextPage();
}

std::int32_t RecordingUser::showMessage(const emulator::MessageBox& box) {
    messages.push_back(box);
    return onMessage ? onMessage(box) : answer;
}

void RecordingUser::progressCommand(std::uint32_t command) {
    progressCommands.push_back(command);
    if (onProgressCommand) onProgressCommand(command);
}

void RecordingUser::displayCreated(const std::string& title) {
    display = Display{};
    display.title = title;
    display.open = true;
}

// Cells arrive row by row; the row's number is the emulator's own.
void RecordingUser::displayCell(std::uint32_t, std::uint32_t column, const std::string& text) {
    if (display.rows.empty()) display.rows.emplace_back();
    display.rows.back()[column] = text;
}

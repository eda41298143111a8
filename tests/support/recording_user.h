#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "emulator/emulator.h"

// A user who writes everything down. Message boxes are answered with `answer`; a table on the screen is read to its end
// and closed. The hooks take over where a test wants another user.
class RecordingUser : public emulator::UserInterface {
public:
    struct Column {
        std::string title;
        std::uint32_t width = 0;
        std::uint32_t alignment = 0;
    };
    struct Display {
        std::string title;
        std::int32_t rowsPerPage = 0;
        std::map<std::uint32_t, Column> columns;
        std::vector<std::map<std::uint32_t, std::string>> rows;  // cells by column
        std::vector<std::string> statuses;
        bool ended = false;
        bool open = false;
    };

    std::int32_t answer = 1;
    bool acceptConnectionDialog = true;
    std::int32_t shellResult = 33;
    std::function<std::int32_t(const emulator::MessageBox&)> onMessage;
    std::function<void()> onPump;  // in place of reading on
    std::function<void(std::uint32_t command)> onProgressCommand;

    std::vector<emulator::MessageBox> messages;
    std::uint32_t connectionDialogs = 0;
    std::vector<std::uint32_t> progressModes;  // of every dialog created
    std::vector<std::uint32_t> progressCommands;
    std::string progressPcName;
    std::uint32_t progressTotalAmount = 0, progressUnit = 0;
    bool progressIsHidden = false;
    Display display;  // the latest
    std::vector<std::pair<std::string, std::string>> shellCalls;

    std::vector<std::uint32_t> messageIds() const;
    // The usual behaviour of pump(), for hooks that want to go on with it.
    void readOn();

    std::int32_t showMessage(const emulator::MessageBox& box) override;
    bool connectionDialog() override {
        ++connectionDialogs;
        return acceptConnectionDialog;
    }
    void pump() override { onPump ? onPump() : readOn(); }
    void progressCreated(std::uint32_t, std::uint32_t mode) override { progressModes.push_back(mode); }
    void progressCommand(std::uint32_t command) override;
    void progressNames(const std::string& pcName, const std::string&) override { progressPcName = pcName; }
    void progressTotal(std::uint32_t total, std::uint32_t unit) override {
        progressTotalAmount = total;
        progressUnit = unit;
    }
    void progressHidden(bool hidden) override { progressIsHidden = hidden; }
    void displayCreated(const std::string& title) override;
    void displayBegin(std::int32_t rowsPerPage) override { display.rowsPerPage = rowsPerPage; }
    void displayColumn(std::uint32_t index, const std::string& title, std::uint32_t width,
                       std::uint32_t alignment) override {
        display.columns[index] = {title, width, alignment};
    }
    void displayRow() override { display.rows.emplace_back(); }
    void displayCell(std::uint32_t row, std::uint32_t column, const std::string& text) override;
    void displayStatus(const std::string& text) override { display.statuses.push_back(text); }
    void displayEnd() override { display.ended = true; }
    void displayDestroyed() override { display.open = false; }
    std::int32_t shellExecute(const std::string& file, const std::string& parameters) override {
        shellCalls.emplace_back(file, parameters);
        return shellResult;
    }
};

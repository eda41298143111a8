#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Z7XFRPCS/session.h"
#include "emulator/emulator.h"
#include "pc_text.h"
#include "transfer_library.h"

// A transfer that the program runs for itself, to find something out: with a client and a user of its own, who is shown
// nothing, declines every question, and remembers what was said.
class SilentTransfer final : public emulator::UserInterface {
public:
    // Throws std::runtime_error when the library makes no client.
    SilentTransfer(const TransferLibrary& library, ZhstSession session);
    ~SilentTransfer() override;
    SilentTransfer(const SilentTransfer&) = delete;
    SilentTransfer& operator=(const SilentTransfer&) = delete;

    // Called with every value written to the monitor store, and between reads and records.
    emulator::StoreListener onStoreWrite;
    std::function<void()> onPump;
    std::function<void(std::uint32_t command)> onProgressCommand;

    // Direction as of pcsTransferFile. Can be run again.
    void run(std::uint32_t direction);
    void cancel();

    // Of the run that was last.
    const std::vector<emulator::MessageBox>& messages() const { return messages_; }
    // The first one, in UTF-8 on one line; empty when there was none.
    std::string said(const PcText& pcText) const;

    std::int32_t showMessage(const emulator::MessageBox& box) override;
    bool connectionDialog() override { return false; }
    void pump() override;
    void progressCommand(std::uint32_t command) override;

private:
    const TransferLibrary& library_;
    ZXFRPCSCLIENT* client_;
    std::vector<emulator::MessageBox> messages_;
};

#include "silent_transfer.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

constexpr std::int32_t Declined = 2;

}  // namespace

SilentTransfer::SilentTransfer(const TransferLibrary& library, ZhstSession session)
    : library_(library), client_(library.newClient(session)) {
    if (client_ == nullptr) throw std::runtime_error("the library made no client");
}

SilentTransfer::~SilentTransfer() { library_.deleteClient(client_); }

void SilentTransfer::run(std::uint32_t direction) {
    messages_.clear();
    emulator::UserInterface* const user = emulator::setUserInterface(this);
    auto listener = emulator::onStoreWrite(onStoreWrite);
    library_.transferFile(client_, "", direction, 1, 0);
    emulator::onStoreWrite(std::move(listener));
    emulator::setUserInterface(user);
}

void SilentTransfer::cancel() { library_.cancelTransfer(client_); }

std::string SilentTransfer::said(const PcText& pcText) const {
    if (messages_.empty()) return {};
    std::string text = pcText.toTerminal(messages_.front().text);
    std::replace_if(
        text.begin(), text.end(), [](unsigned char byte) { return byte < ' '; }, ' ');
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::int32_t SilentTransfer::showMessage(const emulator::MessageBox& box) {
    messages_.push_back(box);
    return Declined;
}

void SilentTransfer::pump() {
    if (onPump) onPump();
}

void SilentTransfer::progressCommand(std::uint32_t command) {
    if (onProgressCommand) onProgressCommand(command);
}

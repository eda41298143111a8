#include "emulator/file_trouble.h"

#include <cstring>
#include <utility>

#include "emulator/messages.h"
#include "emulator/user_interface.h"

namespace emulator {

std::string systemReason(int error) { return std::strerror(error); }

void FileTrouble::declined() {
    sentence_ = "declined";
    told_ = true;
}

bool FileTrouble::note(const std::string& name, const char* doing, const std::string& reason) {
    if (happened()) return false;
    sentence_ = "The file " + name + " could not be " + doing + ": " + reason + ".";
    told_ = false;
    return false;
}

bool FileTrouble::tell(const std::string& name, const char* doing, const std::string& reason) {
    note(name, doing, reason);
    tell();
    return false;
}

void FileTrouble::tell() {
    if (std::exchange(told_, true) || !messageEnabled(0)) return;
    constexpr std::uint32_t Exclamation = 0x30;
    MessageBox box = readyTextBox(session_, MessageSource::PcFile);
    box.flags = Exclamation;
    box.text = sentence_;
    userInterface().showMessage(box);
}

}  // namespace emulator

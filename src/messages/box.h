#pragma once

#include <cstdint>

#include "services/dialogs.h"
#include "services/session.h"

// The one pattern of the library's message boxes: shown only when the user wants the message, exclamation icon and one
// button, the message's own help unless another is named.
namespace messages {

inline constexpr std::uint32_t BoxFlags = 0x30;
inline constexpr std::uint32_t OutOfMemory = 4001;  // an object needed for the transfer could not be created

struct MessageOwner {
    services::SessionHandle session;
    services::SettingsHandle settings;
    services::WindowHandle window;
};

void showMessage(const MessageOwner& owner, std::uint32_t id);
void showMessage(const MessageOwner& owner, std::uint32_t id, const char* insert);
// Hides a progress dialog (0: none) while a message box is up.
class HiddenDialog {
public:
    explicit HiddenDialog(services::ProgressDialogHandle dialog) : dialog_(dialog) {
        if (dialog_) services::ProgressDialogHide(dialog_);
    }
    ~HiddenDialog() {
        if (dialog_) services::ProgressDialogShow(dialog_);
    }
    HiddenDialog(const HiddenDialog&) = delete;
    HiddenDialog& operator=(const HiddenDialog&) = delete;

private:
    services::ProgressDialogHandle dialog_;
};

// A sentence of the library's own, for what the message catalogue has no message for.
void showOwnText(const MessageOwner& owner, const char* text, services::ProgressDialogHandle dialog = 0);

}  // namespace messages

#pragma once

#include <cstdint>

#include "Z7XFRPCS/messages.h"
#include "services/dialogs.h"
#include "services/session.h"

// Message boxes: the one pattern they all follow, and the one way to show them.
namespace messages {

// Whose box it is: the session's messages, and the window it belongs to.
struct Owner {
    services::SessionHandle session;
    services::SettingsHandle settings;
    services::WindowHandle window;
};

// The pattern: shown when the user wants the message, exclamation icon and one button, the message's own help. What a
// box does otherwise is said where it is shown.
struct Box {
    static constexpr std::uint32_t ExclamationAndOk = 0x30;
    static constexpr std::uint32_t InGeneral = 0;  // the gate of messages without one of their own
    static constexpr std::uint32_t NoGate = 0xFFFFFFFF;

    Box(std::uint32_t number) : message(number), gate(number), help(number) {}  // NOLINT: a number is a box
    Box& gatedBy(std::uint32_t other) {
        gate = other;
        return *this;
    }
    Box& withHelp(std::uint32_t topic) {
        help = topic;
        return *this;
    }
    Box& withFlags(std::uint32_t other) {
        flags = other;
        return *this;
    }

    std::uint32_t message;
    std::uint32_t gate;  // the message that must be enabled for this one to be shown
    std::uint32_t help;
    std::uint32_t flags = ExclamationAndOk;
};

// The message that a text of the catalogue makes, with the flags and the help topic of its row.
Box boxOf(zhst::CatalogueText text);

bool isEnabled(const Owner& owner, std::uint32_t message);

// All give the user's answer; 0 when the box was not shown. The inserts are texts and numbers as the message's row in
// the list has them.
std::int32_t show(const Owner& owner, const Box& box);
std::int32_t show(const Owner& owner, const Box& box, const char* insert);
std::int32_t show(const Owner& owner, const Box& box, std::uint32_t insert1, std::uint32_t insert2);
std::int32_t show(const Owner& owner, const Box& box, const char* insert1, std::uint32_t insert2, const char* insert3);
std::int32_t show(const Owner& owner, const Box& box, std::uint32_t insert1, const char* insert2, const char* insert3);
// A long text in a scrolling box; the box gives gate, flags and help.
std::int32_t showScrolling(const Owner& owner, const Box& box, const char* text);
// A sentence of the library's own, with no help, when messages in general are enabled. A progress dialog (0: none) is
// hidden meanwhile.
void showOwnText(const Owner& owner, const char* text, services::ProgressDialogHandle dialog = 0);

// A text of the catalogue in `buffer`, cut to fit.
template <std::uint32_t Size>
void loadText(services::SessionHandle session, zhst::CatalogueText text, char (&buffer)[Size]) {
    services::LoadMessageText(session, text.table, text.index, buffer, Size);
}

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

}  // namespace messages

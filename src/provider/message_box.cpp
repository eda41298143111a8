#include "provider/message_box.h"

namespace provider {

void showMessage(const MessageOwner& owner, std::uint32_t id) {
    if (host::IsMessageEnabled(owner.settings, id)) host::ShowMessage(owner.session, owner.window, id, BoxFlags, 1, id);
}

void showMessage(const MessageOwner& owner, std::uint32_t id, const char* insert) {
    if (host::IsMessageEnabled(owner.settings, id))
        host::ShowMessage1(owner.session, owner.window, id, BoxFlags, 1, id, insert);
}

void showOwnText(const MessageOwner& owner, const char* text, host::ProgressDialogHandle dialog) {
    if (!host::IsMessageEnabled(owner.settings, 0)) return;
    const HiddenDialog hidden(dialog);
    host::ShowMessageText(owner.session, owner.window, BoxFlags, 1, 0, text);
}

}  // namespace provider

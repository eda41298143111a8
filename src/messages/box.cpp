#include "messages/box.h"

namespace messages {

void showMessage(const MessageOwner& owner, std::uint32_t id) {
    if (services::IsMessageEnabled(owner.settings, id))
        services::ShowMessage(owner.session, owner.window, id, BoxFlags, 1, id);
}

void showMessage(const MessageOwner& owner, std::uint32_t id, const char* insert) {
    if (services::IsMessageEnabled(owner.settings, id))
        services::ShowMessage1(owner.session, owner.window, id, BoxFlags, 1, id, insert);
}

void showOwnText(const MessageOwner& owner, const char* text, services::ProgressDialogHandle dialog) {
    if (!services::IsMessageEnabled(owner.settings, 0)) return;
    const HiddenDialog hidden(dialog);
    services::ShowMessageText(owner.session, owner.window, BoxFlags, 1, 0, text);
}

}  // namespace messages

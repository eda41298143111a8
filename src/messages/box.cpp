#include "messages/box.h"

namespace messages {
namespace {

template <class Service, class... Inserts>
std::int32_t showWith(Service service, const Owner& owner, const Box& box, Inserts... inserts) {
    if (box.gate != Box::NoGate && !isEnabled(owner, box.gate)) return 0;
    return service(owner.session, owner.window, box.message, box.flags, 1, box.help, inserts...);
}

}  // namespace

Box boxOf(zhst::CatalogueText text) {
    return Box(services::MessageId(text.table, text.index)).withHelp(text.help).withFlags(text.flags);
}

bool isEnabled(const Owner& owner, std::uint32_t message) {
    return services::IsMessageEnabled(owner.settings, message) != 0;
}

std::int32_t show(const Owner& owner, const Box& box) { return showWith(services::ShowMessage, owner, box); }

std::int32_t show(const Owner& owner, const Box& box, const char* insert) {
    return showWith(services::ShowMessage1, owner, box, insert);
}

std::int32_t show(const Owner& owner, const Box& box, std::uint32_t insert1, std::uint32_t insert2) {
    return showWith(services::ShowMessage2, owner, box, services::insert(insert1), services::insert(insert2));
}

std::int32_t show(const Owner& owner, const Box& box, const char* insert1, std::uint32_t insert2, const char* insert3) {
    return showWith(services::ShowMessage3, owner, box, services::insert(insert1), services::insert(insert2),
                    services::insert(insert3));
}

std::int32_t show(const Owner& owner, const Box& box, std::uint32_t insert1, const char* insert2, const char* insert3) {
    return showWith(services::ShowMessageCode, owner, box, insert1, insert2, insert3);
}

std::int32_t showScrolling(const Owner& owner, const Box& box, const char* text) {
    return showWith(services::zhstMessageBox_scroll, owner, box, text);
}

void showOwnText(const Owner& owner, const char* text, services::ProgressDialogHandle dialog) {
    if (!isEnabled(owner, Box::InGeneral)) return;
    const HiddenDialog hidden(dialog);
    services::ShowMessageText(owner.session, owner.window, Box::ExclamationAndOk, 1, 0, text);
}

}  // namespace messages

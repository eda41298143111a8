#include "reasons.h"

#include "Z7XFRPCS/messages.h"
#include "Z7XFRPCS/provider.h"
#include "Z7XFRPCS/settings.h"
#include "code_page_note.h"
#include "pc_text.h"
#include "provider_reasons.h"
#include "return_codes.h"

namespace {

namespace message = zhst::message;
namespace setting = zhst::setting;

bool isOfBinding(std::uint32_t id) {
    switch (id) {
        case message::RouterNotLoaded:
        case message::RouterIsReplacement:
        case message::RouterNotRunning:
        case message::LibraryNotFound:
        case message::OwnProviderNotLoaded:
        case message::EmulatorEntryMissing:
        case message::IbmProviderNotLoaded:
        case message::IbmEntryMissing:
        case message::AppcProviderNotLoaded:
        case message::AppcEntryMissing:
        case message::As400EntryMissing:
        case message::As400EntryMissingOtherKind:
            return true;
        default:
            return false;
    }
}

// Those that the library shows when a provider has answered with an error.
bool isOfProvider(const emulator::MessageBox& box) {
    const bool ofCode =
        box.id == message::ErrorWithContext || box.id == message::ErrorWithHostText || box.id == message::TextAlone;
    return ofCode || box.scrolling;
}

const char* stepOf(std::uint32_t function) {
    switch (function) {
        case TF_SEND_REQUEST:
            return "to the request";
        case TF_GET_FIELD:
            return "when asked for a field's description";
        case TF_GET_DATA:
            return "when asked for a record";
        case TF_PUT_DATA:
            return "to a record that was sent";
        default:
            return "at the end of the request";
    }
}

}  // namespace

void printBelow(std::ostream& out, const std::vector<std::string>& lines) {
    for (const std::string& line : lines) out << "    " << withoutControls(line) << '\n';
    out.flush();
}

void Reasons::storeWritten(std::string_view code, std::string_view value) {
    if (code != "XDTI" && code != "XUTI") return;
    if (value.size() >= DescriptionBytes) layout_.columns.push_back(hostColumn(value, layout_.recordLength()));
}

std::vector<std::string> Reasons::of(const emulator::MessageBox& box) const {
    if (isOfBinding(box.id)) return whyNothingIsBound(session_);
    if (box.source == emulator::MessageSource::Converter) return ofConversion();
    return isOfProvider(box) ? ofProvider() : std::vector<std::string>{};
}

std::vector<std::string> Reasons::ofProvider() const {
    const TransferWatch::Answer& answer = watch_.lastRefusal();
    if (answer.code == 0) return {};
    std::vector<std::string> lines = {"answered " + std::string(stepOf(answer.function)) + ": " +
                                      return_codes::inWords(answer.code, answer.detail)};
    if (answer.function == TF_GET_DATA && watch_.recordsFetched() > 0)
        lines.push_back("the record behind number " + std::to_string(watch_.recordsFetched()));
    if (answer.function == TF_PUT_DATA)
        lines.push_back("the record behind the " + std::to_string(watch_.recordsSeen()) + " that the host took");
    return lines;
}

std::vector<std::string> Reasons::ofConversion() const {
    const auto page = static_cast<std::uint32_t>(emulator::number(session_, setting::HostCodePage));
    std::vector<std::string> lines = {"tried: host code page " + std::to_string(page) +
                                      ", which is the setting HostCodePage"};
    if (const std::string others = otherCodePages(layout_, page); !others.empty())
        lines.push_back("the host names " + others);
    lines.emplace_back("--host-code-page names another");
    return lines;
}

std::vector<std::string> Reasons::ofSilence() const {
    if (!watch_.wasProviderAsked()) return whyNothingIsBound(session_);
    std::vector<std::string> lines = ofProvider();
    if (lines.empty())
        lines.emplace_back("the library ended the transfer behind the provider's last answer, a success");
    return lines;
}

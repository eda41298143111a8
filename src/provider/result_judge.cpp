#include "provider/result_judge.h"

#include <cstdio>

#include "Z7XFRPCS/messages.h"
#include "messages/own_sentences.h"
#include "platform/platform.h"
#include "provider/return_codes.h"
#include "text/double_byte.h"

namespace provider {
namespace {

namespace id = zhst::setting;
namespace message = zhst::message;
using messages::Box;

constexpr std::uint32_t TextSize = 100;
constexpr std::uint32_t NotCompletedCapacity = 1500;

// An insert in memory of its own, so that no message is lost for want of memory.
template <std::uint32_t Size>
struct Insert {
    Insert() = default;
    explicit Insert(std::int32_t number) { std::snprintf(text, Size, "%d", static_cast<int>(number)); }
    Insert(services::SettingsHandle settings, std::uint32_t setting) {
        services::GetStringSetting(settings, setting, text, Size);
    }
    char text[Size] = {};
    services::TextRecord record{text, Size};
};

struct Failure {
    const messages::Owner& owner;
    const Connection& connection;
    std::uint16_t code;
    std::string_view hostText;
    std::uint32_t contextText;
    char errorText[TextSize] = {};  // empty where none applies
};

// One message gates all reports of failures, and its gate has been asked: which message then tells the failure makes no
// difference.
Box ungated(std::uint32_t number) { return Box(number).gatedBy(Box::NoGate); }

void loadErrorText(Failure& failure, std::uint16_t detailCode) {
    const Family family = failure.connection.transport().family;
    const bool ofProvider = isProviderCode(failure.code);
    zhst::CatalogueText text = {ZhstTransferTable, failure.code};
    if (family == Family::As400) {
        // Behind a detail the code says nothing by itself, and what was being done is no help either.
        if (detailCode != 0) {
            failure.contextText = 0;
            return;
        }
        // Its codes are their own places in both tables; the transfer function's have a list of theirs.
        if (ofProvider) text.table = ZhstProviderTable;
    } else if (isOwnProvider(family) && ofProvider) {
        const bool routed = failure.connection.routerKind == zhst::value::RouterAs400;
        text.table = routed ? ZhstRoutedProviderTable : ZhstProviderTable;
    } else {
        text.index = errorTextIndex(failure.code);
        if (text.index == 0) return;
    }
    messages::loadText(failure.owner.session, text, failure.errorText);
}

// The host's messages of these two codes are whole answers, which a code and its text would only blur.
void showHostText(const Failure& failure) {
    char text[BufferSize + 1];
    text::copyCut(failure.hostText, text, sizeof(text));
    if (failure.code != TF_HOST_MESSAGE && failure.code != TF_HOST_MESSAGE_INSTEAD)
        messages::show(failure.owner, ungated(message::ErrorWithHostText).withHelp(helpIdOf(failure.code)),
                       failure.code, failure.errorText, text);
    else if (failure.connection.isAs400Mode(failure.owner.settings))
        // The scrolling box is no message of the catalogue; its help is that of the box it stands in for.
        messages::showScrolling(failure.owner, ungated(0).withHelp(message::TextAlone), text);
    else
        messages::show(failure.owner, ungated(message::TextAlone), text);
}

// Where nothing else is known the user is sent to the job log of the host, which says more than any code.
void showNotCompleted(const messages::Owner& owner) {
    const Insert<20> received(services::GetSetting(owner.settings, id::JobRecordsReceived));
    const Insert<20> total(services::GetSetting(owner.settings, id::JobRecordsTotal));
    Insert<301> system(owner.settings, id::HostSystemName);
    platform::CharUpperA(system.text);
    const Insert<11> jobName(owner.settings, id::JobName);
    const Insert<11> jobUser(owner.settings, id::JobUser);
    const Insert<7> jobNumber(owner.settings, id::JobNumber);
    const services::TextRecord* inserts[] = {&received.record, &total.record,   &system.record,
                                             &jobName.record,  &jobUser.record, &jobNumber.record};

    // A text record of some capacity has one byte more than that.
    Insert<NotCompletedCapacity + 1> sentence;
    sentence.record.capacity = NotCompletedCapacity;
    text::copyCut(messages::sentence::NotCompleted, sentence.text, NotCompletedCapacity);
    services::formatStringSet(&sentence.record, inserts, 6);
    messages::show(owner, ungated(message::TextAlone), sentence.text);
}

// What the host says comes first, then what was being done, then what the provider says.
void showFailure(const Failure& failure) {
    if (!failure.hostText.empty()) {
        showHostText(failure);
    } else if (failure.contextText != 0) {
        char context[TextSize] = {};
        messages::loadText(failure.owner.session, {ZhstTransferTable, failure.contextText}, context);
        messages::show(failure.owner, ungated(message::ErrorWithContext), context, failure.code, failure.errorText);
    } else if (failure.connection.transport().has(OwnTextAlone) && isProviderCode(failure.code)) {
        messages::show(failure.owner, ungated(message::TextAlone).withHelp(helpIdOf(failure.code)), failure.errorText);
    } else {
        showNotCompleted(failure.owner);
    }
}

void tellFailure(const messages::Owner& owner, const Connection& connection, const Exchange& exchange) {
    Failure failure = {owner, connection, exchange.result.returnCode, exchange.hostText, exchange.contextText};
    loadErrorText(failure, exchange.result.detailCode);
    if (messages::isEnabled(owner, message::ErrorWithContext)) {
        const messages::HiddenDialog hidden(exchange.dialog);
        showFailure(failure);
    }
    services::SetStringSetting(owner.settings, id::LastErrorText, failure.errorText);
}

void tellNotStarted(const messages::Owner& owner, services::ProgressDialogHandle dialog) {
    if (!messages::isEnabled(owner, message::TransferFunctionNotStarted)) return;
    const messages::HiddenDialog hidden(dialog);
    messages::show(owner, ungated(message::TransferFunctionNotStarted));
}

}  // namespace

bool judgeResult(const messages::Owner& owner, const Connection& connection, const Exchange& exchange) {
    const std::uint16_t code = exchange.result.returnCode;
    services::SetSetting(owner.settings, id::LastReturnCode, code);
    if (code == TF_SUCCESS || code == TF_COMPLETED) return true;
    if (code == TF_NOT_STARTED)
        tellNotStarted(owner, exchange.dialog);
    else if (code != TF_FAILED_SILENTLY)
        tellFailure(owner, connection, exchange);
    return false;
}

}  // namespace provider

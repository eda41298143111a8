#include <cstdio>

#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"
#include "provider/return_codes.h"
#include "provider/transfer_function_session.h"
#include "text/double_byte.h"

// The one place where the result of an exchange is judged and told.
namespace provider {
namespace {

namespace id = zhst::setting;

constexpr std::uint32_t TransferTable = 7;
constexpr std::uint32_t OwnProviderTable = 22;
constexpr std::uint32_t As400ProviderTable = 45;
constexpr std::uint32_t TextSize = 100;

enum Message : std::uint32_t {
    ErrorWithContext = 4406,  // also the gate of every error report
    ErrorWithHostText = 4408,
    TextAlone = 4416,
    TransferFunctionNotStarted = 4432,
};

constexpr char NotCompletedTemplate[] =
    "File transfer not completed.\nReceived approximately %1 records of %2.\n\n"
    "Refer to job log on host system %3.\nJob name %4, user profile %5, job number %6";
constexpr std::uint32_t NotCompletedCapacity = 1500;

// An insert in memory of its own, so that no message is lost for want of memory.
template <std::uint32_t Size>
struct Insert {
    char text[Size] = {};
    services::TextRecord record{text, Size};

    void setNumber(std::int32_t number) { std::snprintf(text, Size, "%d", static_cast<int>(number)); }
    void setSetting(services::SettingsHandle settings, std::uint32_t setting) {
        services::GetStringSetting(settings, setting, text, Size);
    }
};

}  // namespace

bool TransferFunctionSession::tfCheckResult(std::uint32_t contextText, const TfResult& result,
                                            services::ProgressDialogHandle dialog) {
    if (!started_) return false;
    services::SetSetting(settings_, id::LastReturnCode, result.returnCode);
    switch (result.returnCode) {
        case TF_SUCCESS:
        case TF_COMPLETED:
            return true;
        case TF_FAILED_SILENTLY:
            return false;
        case TF_NOT_STARTED:
            if (services::IsMessageEnabled(settings_, TransferFunctionNotStarted)) {
                const messages::HiddenDialog hidden(dialog);
                services::ShowMessage(session_, sessionWindow_, TransferFunctionNotStarted,
                                      messages::Box::ExclamationAndOk, 1, TransferFunctionNotStarted);
            }
            return false;
        default:
            break;
    }
    char errorText[TextSize] = {};
    loadErrorText(result, contextText, errorText);
    if (services::IsMessageEnabled(settings_, ErrorWithContext)) {
        const messages::HiddenDialog hidden(dialog);
        showError(result, contextText, errorText);
    }
    services::SetStringSetting(settings_, id::LastErrorText, errorText);
    return false;
}

// Leaves the text empty where none applies. A detail code of an AS/400 client's error takes the context away with it.
void TransferFunctionSession::loadErrorText(const TfResult& result, std::uint32_t& contextText,
                                            char (&buffer)[100]) const {
    const std::uint16_t code = result.returnCode;
    if (connection_.transport().family == Family::As400) {
        if (result.detailCode != 0) {
            contextText = 0;
            return;
        }
        const std::uint32_t table = isProviderCode(code) ? OwnProviderTable : TransferTable;
        services::LoadMessageText(session_, table, code, buffer, TextSize);
    } else if (isOwnProvider(connection_.transport().family) && isProviderCode(code)) {
        const std::uint32_t table =
            connection_.routerKind == zhst::value::RouterAs400 ? As400ProviderTable : OwnProviderTable;
        services::LoadMessageText(session_, table, code, buffer, TextSize);
    } else if (const std::uint32_t index = errorTextIndex(code)) {
        services::LoadMessageText(session_, TransferTable, index, buffer, TextSize);
    }
}

void TransferFunctionSession::showError(const TfResult& result, std::uint32_t contextText,
                                        const char* errorText) const {
    const std::string_view hostText = returned(result);
    if (!hostText.empty()) {
        showHostText(result, hostText, errorText);
    } else if (contextText != 0) {
        char context[TextSize] = {};
        services::LoadMessageText(session_, TransferTable, contextText, context, TextSize);
        services::ShowMessage3(session_, sessionWindow_, ErrorWithContext, messages::Box::ExclamationAndOk, 1,
                               ErrorWithContext, services::insert(context),
                               services::insert(std::uint32_t{result.returnCode}), services::insert(errorText));
    } else if (connection_.transport().has(OwnTextAlone) && isProviderCode(result.returnCode)) {
        services::ShowMessage1(session_, sessionWindow_, TextAlone, messages::Box::ExclamationAndOk, 1,
                               helpIdOf(result.returnCode), errorText);
    } else {
        showNotCompleted();
    }
}

void TransferFunctionSession::showHostText(const TfResult& result, std::string_view hostText,
                                           const char* errorText) const {
    char text[BufferSize + 1];
    text::copyCut(hostText, text, sizeof(text));
    const bool alone = result.returnCode == TF_HOST_MESSAGE || result.returnCode == TF_HOST_MESSAGE_INSTEAD;
    if (alone && tfIsAs400Mode())
        services::zhstMessageBox_scroll(session_, sessionWindow_, 0, messages::Box::ExclamationAndOk, 1, TextAlone,
                                        text);
    else if (alone)
        services::ShowMessage1(session_, sessionWindow_, TextAlone, messages::Box::ExclamationAndOk, 1, TextAlone,
                               text);
    else
        services::ShowMessageCode(session_, sessionWindow_, ErrorWithHostText, messages::Box::ExclamationAndOk, 1,
                                  helpIdOf(result.returnCode), result.returnCode, errorText, text);
}

void TransferFunctionSession::showNotCompleted() const {
    Insert<20> received, total;
    Insert<301> system;
    Insert<11> jobName, jobUser;
    Insert<7> jobNumber;
    received.setNumber(services::GetSetting(settings_, id::JobRecordsReceived));
    total.setNumber(services::GetSetting(settings_, id::JobRecordsTotal));
    system.setSetting(settings_, id::HostSystemName);
    platform::CharUpperA(system.text);
    jobName.setSetting(settings_, id::JobName);
    jobUser.setSetting(settings_, id::JobUser);
    jobNumber.setSetting(settings_, id::JobNumber);

    Insert<NotCompletedCapacity + 1> message;
    message.record.capacity = NotCompletedCapacity;
    text::copyCut(NotCompletedTemplate, message.text, NotCompletedCapacity);
    const services::TextRecord* inserts[] = {&received.record, &total.record,   &system.record,
                                             &jobName.record,  &jobUser.record, &jobNumber.record};
    services::formatStringSet(&message.record, inserts, 6);
    services::ShowMessage1(session_, sessionWindow_, TextAlone, messages::Box::ExclamationAndOk, 1, TextAlone,
                           message.text);
}

}  // namespace provider

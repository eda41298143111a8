#include "settings/transfer_settings.h"

#include "host/session.h"
#include "host/setting_ids.h"
#include "platform/platform.h"

namespace settings {
namespace {

namespace id = host::setting;

constexpr std::int32_t CommaMode = 2;
constexpr std::int32_t LocaleMode = 8;

char firstOfLocale(std::uint32_t type) {
    char value[5] = {};
    platform::GetLocaleInfoA(platform::LocaleUserDefault, type, value, sizeof(value));
    return value[0];
}

char decimalSeparatorOf(std::int32_t mode) {
    if (mode == CommaMode) return ',';
    return mode == LocaleMode && firstOfLocale(platform::LocaleDecimalSeparator) == ',' ? ',' : '.';
}

}  // namespace

TransferSettings::TransferSettings(host::SessionHandle owner, provider::TransferFunctionSession* functions)
    : selectList(host::Owned<text::TextBuffer>::make()),
      tfSession(functions),
      settings(host::GetSessionSettings(owner)),
      session(owner),
      sessionServices(host::GetSessionServices(owner)) {
    readIntegers();
    readStrings();
    const auto clauses = sessionServices ? sessionServices->getTransferClauses() : nullptr;
    if (clauses && selectList) clauses(session, selectList->record(), nullptr, nullptr, nullptr, nullptr, nullptr);
    listSeparator = firstOfLocale(platform::LocaleListSeparator);
    numericWidthMode = host::GetSetting(settings, id::NumericWidthMode);
}

void TransferSettings::readIntegers() {
    useDescriptionFile = host::GetSetting(settings, id::UseDescriptionFile) == 1;
    writeDescriptionFile = host::GetSetting(settings, id::WriteDescriptionFile) == 1;
    sendFileType = host::GetSetting(settings, id::SendFileType);
    receiveFileType = host::GetSetting(settings, id::ReceiveFileType);
    hostFileType = host::GetSetting(settings, id::HostFileType);
    publicAuthority = host::GetSetting(settings, id::PublicAuthority);
    recordLength = host::GetSetting(settings, id::RecordLength);
    timeFormat = host::GetSetting(settings, id::TimeFormat);
    dateFormat = host::GetSetting(settings, id::DateFormat);
    timeSeparator = host::GetSetting(settings, id::TimeSeparator);
    dateSeparator = host::GetSetting(settings, id::DateSeparator);
    ignoreDecimalErrors = host::GetSetting(settings, id::IgnoreDecimalErrors);
    decimalSeparatorMode = host::GetSetting(settings, id::DecimalSeparatorMode);
    decimalSeparator = decimalSeparatorOf(decimalSeparatorMode);
    receiveOutput = host::GetSetting(settings, id::ReceiveOutput);
    createMode = host::GetSetting(settings, id::CreateMode);
    recordProgress = host::GetSetting(settings, id::RecordProgress);
    startRecord = static_cast<std::uint32_t>(host::GetSetting(settings, id::StartRecord));
}

void TransferSettings::readStrings() {
    host::GetStringSetting(settings, id::FileText, fileText, sizeof(fileText));
    host::GetStringSetting(settings, id::MemberText, memberText, sizeof(memberText));
    host::GetStringSetting(settings, id::SendDescriptionFile, sendDescriptionFile, sizeof(sendDescriptionFile));
    host::GetStringSetting(settings, id::ReceiveDescriptionFile, receiveDescriptionFile,
                           sizeof(receiveDescriptionFile));
    host::GetStringSetting(settings, id::ReferenceFile, referenceFile, sizeof(referenceFile));
    host::GetStringSetting(settings, id::SortSequence, sortSequence, sizeof(sortSequence));
}

}  // namespace settings

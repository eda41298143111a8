#include "settings/transfer_settings.h"

#include "Z7XFRPCS/settings.h"
#include "platform/platform.h"
#include "services/session.h"

namespace settings {
namespace {

namespace id = zhst::setting;

constexpr std::int32_t CommaMode = 2;
constexpr std::int32_t LocaleMode = 8;

char firstOfLocale(std::uint32_t type) {
    char value[5] = {};
    platform::GetLocaleInfoA(platform::LocaleUserDefault, type, value, sizeof(value));
    return value[0];
}

// Only the comma is told apart; whatever else a locale has counts as a point.
char decimalSeparatorOf(std::int32_t mode) {
    if (mode == CommaMode) return ',';
    return mode == LocaleMode && firstOfLocale(platform::LocaleDecimalSeparator) == ',' ? ',' : '.';
}

}  // namespace

TransferSettings::TransferSettings(services::SessionHandle owner)
    : session(owner),
      settings(services::GetSessionSettings(owner)),
      sessionServices(services::GetSessionServices(owner)),
      selectList(services::Owned<text::TextBuffer>::make()) {
    readIntegers();
    readStrings();
    const auto clauses = sessionServices ? sessionServices->getTransferClauses : nullptr;
    if (clauses && selectList) clauses(session, selectList->record(), nullptr, nullptr, nullptr, nullptr, nullptr);
    listSeparator = firstOfLocale(platform::LocaleListSeparator);
    numericWidthMode = services::GetSetting(settings, id::NumericWidthMode);
}

void TransferSettings::readIntegers() {
    useDescriptionFile = services::GetSetting(settings, id::UseDescriptionFile) == 1;
    writeDescriptionFile = services::GetSetting(settings, id::WriteDescriptionFile) == 1;
    sendFileType = services::GetSetting(settings, id::SendFileType);
    receiveFileType = services::GetSetting(settings, id::ReceiveFileType);
    hostFileType = services::GetSetting(settings, id::HostFileType);
    publicAuthority = services::GetSetting(settings, id::PublicAuthority);
    recordLength = services::GetSetting(settings, id::RecordLength);
    timeFormat = services::GetSetting(settings, id::TimeFormat);
    dateFormat = services::GetSetting(settings, id::DateFormat);
    timeSeparator = services::GetSetting(settings, id::TimeSeparator);
    dateSeparator = services::GetSetting(settings, id::DateSeparator);
    ignoreDecimalErrors = services::GetSetting(settings, id::IgnoreDecimalErrors);
    decimalSeparatorMode = services::GetSetting(settings, id::DecimalSeparatorMode);
    decimalSeparator = decimalSeparatorOf(decimalSeparatorMode);
    receiveOutput = services::GetSetting(settings, id::ReceiveOutput);
    createMode = services::GetSetting(settings, id::CreateMode);
    recordProgress = services::GetSetting(settings, id::RecordProgress);
    startRecord = static_cast<std::uint32_t>(services::GetSetting(settings, id::StartRecord));
}

void TransferSettings::readStrings() {
    services::GetStringSetting(settings, id::FileText, fileText, sizeof(fileText));
    services::GetStringSetting(settings, id::MemberText, memberText, sizeof(memberText));
    services::GetStringSetting(settings, id::SendDescriptionFile, sendDescriptionFile, sizeof(sendDescriptionFile));
    services::GetStringSetting(settings, id::ReceiveDescriptionFile, receiveDescriptionFile,
                               sizeof(receiveDescriptionFile));
    services::GetStringSetting(settings, id::ReferenceFile, referenceFile, sizeof(referenceFile));
    services::GetStringSetting(settings, id::SortSequence, sortSequence, sizeof(sortSequence));
}

}  // namespace settings

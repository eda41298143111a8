#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "emulator/emulator.h"
#include "emulator/setting_rows.h"
#include "pc_text.h"

// Settings as a person writes them.
struct Assignment {
    std::uint32_t id = 0;
    std::variant<std::int32_t, std::string> value;  // a text in UTF-8
};

// By number or name, in any case. Throws std::invalid_argument, with all that there are.
const emulator::SettingRow& findSetting(std::string_view numberOrName);
const emulator::SettingRow& settingRow(std::uint32_t number);
// The same, or all those with `part` in their names; an empty one is in every name.
std::vector<const emulator::SettingRow*> settingsLike(std::string_view part);

// A value as people write it: a text as it stands, a number in decimal or behind 0x, one of the setting's words in any
// case. Throws std::invalid_argument, with the values that there are.
Assignment parseValue(std::uint32_t setting, std::string_view value);

// "ID=VALUE" or "NAME=VALUE". Throws std::invalid_argument with the reason.
Assignment parseAssignment(std::string_view text);

// Lines of that form; empty lines and lines that begin with '#' are skipped. Throws std::invalid_argument with
// "FILE:LINE: reason".
std::vector<Assignment> readSettingsFile(const std::string& file);

// Throws std::invalid_argument for a text that the PC's code page cannot hold, or that the library would cut.
void apply(ZhstSession session, const std::vector<Assignment>& assignments, const PcText& pcText);

// What this program sets before the user's say: a session that needs no connection dialog and transfers with an English
// user's habits. Every other setting is 0 or empty.
struct SettingDefault {
    std::uint32_t setting;
    const char* value;      // as people write it
    const char* when = "";  // else what is known goes before
};

inline constexpr SettingDefault settingDefaults[] = {
    {zhst::setting::HostSystemName, "SAMPLE"},
    {zhst::setting::ConnectionParam248, "sample"},
    {zhst::setting::ConnectionParam250, "sample"},
    {zhst::setting::ConnectionParam512, "sample"},
    {zhst::setting::TransportType, "emulator"},
    {zhst::setting::RouterKind, "ibm"},
    {zhst::setting::HostCodePage, "37", "where the host does not say it"},
    {zhst::setting::PcFileName, "-"},
    {zhst::setting::SendFileType, "csv", "where the name says nothing"},
    {zhst::setting::ReceiveFileType, "csv", "where the name says nothing"},
    {zhst::setting::ReceiveOutput, "file"},
    {zhst::setting::ExistingFileAction, "replace"},
    // A member that is there is only replaced after a question; the other modes go on without one.
    {zhst::setting::CreateMode, "replace"},
    {zhst::setting::RecordLength, "92"},  // a source line of 80 characters with its sequence number and date
    {zhst::setting::StartRecord, "1"},
    {zhst::setting::IgnoreDecimalErrors, "no"},  // a damaged number is told, not replaced
    {zhst::setting::DecimalSeparatorMode, "locale"},
    {zhst::setting::TimeFormat, "iso"},
    {zhst::setting::TimeSeparator, "colon"},
    {zhst::setting::DateFormat, "iso"},
    {zhst::setting::DateSeparator, "hyphen"},
    {zhst::setting::DisplayRowsPerPage, "20"},
};

std::vector<Assignment> defaultSettings();

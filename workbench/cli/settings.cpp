#include "settings.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <fstream>
#include <optional>
#include <stdexcept>

#include "emulator/setting_rows.h"
#include "suggestions.h"

namespace {

namespace setting = zhst::setting;
namespace value = zhst::value;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool sameName(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

// Decimal or, behind 0x, hexadecimal; the high bit of a hexadecimal number is the sign.
std::optional<std::int32_t> parseNumber(std::string_view text) {
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) text.remove_prefix(2);
    std::int32_t value = 0;
    std::uint32_t bits = 0;
    const char* end = text.data() + text.size();
    const auto result =
        hexadecimal ? std::from_chars(text.data(), end, bits, 16) : std::from_chars(text.data(), end, value);
    if (text.empty() || result.ec != std::errc{} || result.ptr != end) return std::nullopt;
    return hexadecimal ? static_cast<std::int32_t>(bits) : value;
}

const emulator::SettingRow& findSetting(std::string_view idOrName) {
    const std::optional<std::int32_t> id = parseNumber(idOrName);
    for (const emulator::SettingRow& row : emulator::settingRows) {
        if (id ? row.number == static_cast<std::uint32_t>(*id) : sameName(row.name, idOrName)) return row;
    }
    std::vector<std::string> names;
    for (const emulator::SettingRow& row : emulator::settingRows) names.emplace_back(row.name);
    throw std::invalid_argument("there is no setting " + std::string(idOrName) + didYouMean(idOrName, names));
}

}  // namespace

Assignment parseAssignment(std::string_view text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
        throw std::invalid_argument("a setting is written ID=VALUE or NAME=VALUE, not " + std::string(text));
    }
    const emulator::SettingRow& row = findSetting(trimmed(text.substr(0, equals)));
    const std::string_view value = text.substr(equals + 1);
    if (row.kind == emulator::SettingKind::Text) return {row.number, std::string(value)};
    const std::optional<std::int32_t> number = parseNumber(trimmed(value));
    if (!number) throw std::invalid_argument(std::string(row.name) + " takes a number, not " + std::string(value));
    return {row.number, *number};
}

std::vector<Assignment> readSettingsFile(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<Assignment> assignments;
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
        const std::string_view text = trimmed(line);
        if (text.empty() || text.front() == '#') continue;
        try {
            assignments.push_back(parseAssignment(text));
        } catch (const std::invalid_argument& error) {
            throw std::invalid_argument(file + ":" + std::to_string(number) + ": " + error.what());
        }
    }
    if (!stream.eof()) throw std::invalid_argument(file + ": cannot be read");
    return assignments;
}

void apply(ZhstSession session, const std::vector<Assignment>& assignments, const PcText& pcText) {
    for (const Assignment& assignment : assignments) {
        if (const auto* number = std::get_if<std::int32_t>(&assignment.value)) {
            emulator::set(session, assignment.id, *number);
        } else {
            emulator::set(session, assignment.id, pcText.toPc(std::get<std::string>(assignment.value)));
        }
    }
}

std::vector<Assignment> defaultSettings() {
    return {
        {setting::HostSystemName, "SAMPLE"},
        {setting::ConnectionParam248, "sample"},
        {setting::ConnectionParam250, "sample"},
        {setting::ConnectionParam512, "sample"},
        {setting::TransportType, 9},
        {setting::RouterKind, value::RouterIbm},
        {setting::HostCodePage, 37},
        {setting::PcFileName, "-"},
        {setting::SendFileType, ZhstCommaSeparated},
        {setting::ReceiveFileType, ZhstCommaSeparated},
        {setting::ReceiveOutput, value::ToPcFile},
        {setting::ExistingFileAction, value::Replace},
        // A file that is there is only replaced after a question; the other modes go on without one.
        {setting::CreateMode, value::ReplaceMember},
        {setting::RecordLength, 92},  // a source line of 80 characters with its sequence number and date
        {setting::StartRecord, 1},
        {setting::IgnoreDecimalErrors, 0},   // a damaged number is told, not replaced
        {setting::DecimalSeparatorMode, 8},  // that of the PC's locale
        {setting::TimeFormat, 4},            // ISO
        {setting::TimeSeparator, 1},         // ':'
        {setting::DateFormat, 4},            // ISO
        {setting::DateSeparator, 3},         // '-'
        {setting::DisplayRowsPerPage, 20},
    };
}

#include "settings.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <fstream>
#include <optional>
#include <stdexcept>

#include "environment/utf8_path.h"
#include "suggestions.h"

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string lowered(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](unsigned char c) { return std::tolower(c); });
    return result;
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

const emulator::SettingRow* exactSetting(std::string_view numberOrName) {
    const std::optional<std::int32_t> number = parseNumber(numberOrName);
    const auto row = std::ranges::find_if(emulator::settingRows, [&](const emulator::SettingRow& each) {
        return number ? each.number == static_cast<std::uint32_t>(*number)
                      : lowered(each.name) == lowered(numberOrName);
    });
    return row == std::end(emulator::settingRows) ? nullptr : row;
}

[[noreturn]] void refuseSetting(std::string_view numberOrName) {
    std::vector<std::string> names;
    std::string list;
    for (const emulator::SettingRow& row : emulator::settingRows) {
        names.emplace_back(row.name);
        list += (list.empty() ? "" : ", ") + std::to_string(row.number) + ' ' + row.name;
    }
    throw std::invalid_argument("there is no setting " + std::string(numberOrName) + didYouMean(numberOrName, names) +
                                "\nThere are " + list + '.');
}

[[noreturn]] void refuseValue(const emulator::SettingRow& setting, std::string_view value) {
    std::vector<std::string> words;
    for (const emulator::SettingValueRow& row : emulator::valuesOf(setting)) words.emplace_back(row.word);
    const bool isNumber = setting.kind == emulator::SettingKind::Number;
    if (isNumber && words.empty())
        throw std::invalid_argument(std::string(setting.name) + ": " + std::string(value) + " is no number");
    if (isNumber) words.emplace_back("a number");
    throw std::invalid_argument(std::string(setting.name) + ": " + notOneOf(value, words));
}

std::optional<std::int32_t> valueOf(const emulator::SettingRow& setting, std::string_view text) {
    for (const emulator::SettingValueRow& row : emulator::valuesOf(setting))
        if (row.word == lowered(text)) return row.value;
    const std::optional<std::int32_t> number = parseNumber(text);
    const bool anyGoes = setting.kind == emulator::SettingKind::Number;
    return number && (anyGoes || emulator::valueRow(setting, *number)) ? number : std::nullopt;
}

void checkLength(const emulator::SettingRow& setting, std::string_view text) {
    if (setting.longest == 0 || text.size() <= setting.longest) return;
    throw std::invalid_argument(std::string(setting.name) + " has " + std::to_string(text.size()) +
                                " characters; a transfer takes " + std::to_string(setting.longest));
}

}  // namespace

const emulator::SettingRow& settingRow(std::uint32_t number) { return findSetting(std::to_string(number)); }

const emulator::SettingRow& findSetting(std::string_view numberOrName) {
    if (const emulator::SettingRow* row = exactSetting(numberOrName)) return *row;
    refuseSetting(numberOrName);
}

std::vector<const emulator::SettingRow*> settingsLike(std::string_view part) {
    if (const emulator::SettingRow* row = exactSetting(part)) return {row};
    std::vector<const emulator::SettingRow*> rows;
    for (const emulator::SettingRow& row : emulator::settingRows)
        if (lowered(row.name).find(lowered(part)) != std::string::npos) rows.push_back(&row);
    if (rows.empty()) refuseSetting(part);
    return rows;
}

Assignment parseValue(std::uint32_t setting, std::string_view value) {
    const emulator::SettingRow& row = settingRow(setting);
    if (row.kind == emulator::SettingKind::Text) return {row.number, std::string(value)};
    if (const std::optional<std::int32_t> number = valueOf(row, trimmed(value))) return {row.number, *number};
    refuseValue(row, value);
}

Assignment parseAssignment(std::string_view text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos) {
        throw std::invalid_argument("a setting is written ID=VALUE or NAME=VALUE, not " + std::string(text));
    }
    return parseValue(findSetting(trimmed(text.substr(0, equals))).number, text.substr(equals + 1));
}

std::vector<Assignment> readSettingsFile(const std::string& file) {
    std::ifstream stream(utf8Path(file), std::ios::binary);
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
            const std::string text = pcText.toPc(std::get<std::string>(assignment.value));
            checkLength(settingRow(assignment.id), text);
            emulator::set(session, assignment.id, text);
        }
    }
}

std::vector<Assignment> defaultSettings() {
    std::vector<Assignment> settings;
    for (const SettingDefault& each : settingDefaults) settings.push_back(parseValue(each.setting, each.value));
    return settings;
}

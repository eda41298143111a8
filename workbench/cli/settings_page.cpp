#include "settings_page.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <string>

#include "json.h"
#include "json_members.h"
#include "settings.h"

namespace {

using emulator::SettingKind;
using emulator::SettingRow;
using emulator::SettingValueRow;

std::string defaultOf(const SettingRow& setting) {
    const auto row = std::ranges::find(settingDefaults, setting.number, &SettingDefault::setting);
    if (row != std::end(settingDefaults)) return std::string(row->value) + (*row->when ? " " : "") + row->when;
    if (setting.kind == SettingKind::Text) return "empty";
    const SettingValueRow* zero = emulator::valueRow(setting, 0);
    return zero ? zero->word : "0";
}

std::string what(const SettingRow& setting) {
    std::string words;
    for (const SettingValueRow& row : emulator::valuesOf(setting))
        words += (words.empty() ? "" : ", ") + std::string(row.word);
    if (setting.kind == SettingKind::Number) return words.empty() ? "a number" : "a number, or " + words;
    if (setting.kind != SettingKind::Text) return words;
    return setting.longest == 0 ? "a text" : "a text of at most " + std::to_string(setting.longest) + " characters";
}

const char* writer(const SettingRow& setting) {
    switch (setting.writer) {
        case emulator::SettingWriter::User:
            return "the user";
        case emulator::SettingWriter::Library:
            return "the library";
        default:
            return "the user and the library";
    }
}

const char* reading(const SettingRow& setting) {
    switch (setting.reading) {
        case emulator::SettingReading::Once:
            return "once, at the start of a transfer";
        case emulator::SettingReading::Live:
            return "whenever it is needed";
        default:
            return "never";
    }
}

constexpr int NameColumn = 5;
constexpr int TextColumn = 29;

void printShort(std::ostream& out, const SettingRow& setting) {
    out << std::setw(NameColumn - 1) << setting.number << ' ' << std::left << std::setw(TextColumn - NameColumn)
        << setting.name << std::right << setting.meaning << '\n'
        << std::setw(TextColumn) << "" << what(setting);
    out << (setting.writer == emulator::SettingWriter::Library ? "; written by the library"
                                                               : "; " + defaultOf(setting) + " unless given")
        << '\n';
}

void printWhole(std::ostream& out, const SettingRow& setting) {
    out << setting.number << ' ' << setting.name << ": " << setting.meaning << "\n  takes    " << what(setting) << '\n';
    for (const SettingValueRow& row : emulator::valuesOf(setting))
        out << "           " << std::setw(3) << row.value << ' ' << std::left << std::setw(14) << row.word << std::right
            << row.meaning << '\n';
    out << "  default  " << defaultOf(setting) << "\n  written  by " << writer(setting) << "\n  read     "
        << reading(setting) << '\n';
}

// In the order of the enumerations.
constexpr std::array<const char*, 4> KindWords = {"number", "choice", "switch", "text"};
constexpr std::array<const char*, 3> WriterWords = {"user", "library", "both"};
constexpr std::array<const char*, 3> ReadingWords = {"once", "live", "never"};

std::string settingObject(const SettingRow& setting) {
    json::Object object;
    object.number(setting_member::Number, setting.number).text(setting_member::Name, setting.name);
    object.text(setting_member::Kind, KindWords[static_cast<std::size_t>(setting.kind)])
        .text(setting_member::Meaning, setting.meaning);
    object.text(setting_member::Default,
                setting.kind == SettingKind::Text && defaultOf(setting) == "empty" ? "" : defaultOf(setting));
    if (setting.longest != 0) object.number(setting_member::Longest, setting.longest);
    object.text(setting_member::Writer, WriterWords[static_cast<std::size_t>(setting.writer)]);
    object.text(setting_member::Reading, ReadingWords[static_cast<std::size_t>(setting.reading)]);
    std::vector<std::string> values;
    for (const SettingValueRow& row : emulator::valuesOf(setting)) {
        json::Object value;
        value.number("value", row.value).text("word", row.word).text("meaning", row.meaning);
        values.push_back(value.whole());
    }
    return object.value(setting_member::Values, json::array(values)).whole();
}

}  // namespace

std::string settingsReport(std::string_view name) {
    std::vector<std::string> objects;
    for (const SettingRow* setting : settingsLike(name)) objects.push_back(settingObject(*setting));
    return json::Object().value("settings", json::array(objects)).whole();
}

void printSettings(std::ostream& out, std::string_view name) {
    const std::vector<const SettingRow*> settings = settingsLike(name);
    for (const SettingRow* setting : settings)
        settings.size() == 1 ? printWhole(out, *setting) : printShort(out, *setting);
}

#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>

#include "Z7XFRPCS/settings.h"

// The settings and their values as rows, for whoever goes through them all.
namespace emulator {

enum class SettingKind { Number, Choice, Switch, Text };
enum class SettingWriter { User, Library, Both };
enum class SettingReading { Once, Live, Never };

struct SettingRow {
    std::uint32_t number;
    const char* name;
    SettingKind kind;
    std::uint32_t longest;  // bytes of a text; 0 for any
    SettingWriter writer;
    SettingReading reading;
    const char* meaning;
};

inline constexpr SettingRow settingRows[] = {
#define ZHST_SETTING_ROW(number, name, kind, longest, writer, reading, meaning) \
    {number, #name, SettingKind::kind, longest, SettingWriter::writer, SettingReading::reading, meaning},
    ZHST_SETTINGS(ZHST_SETTING_ROW)
#undef ZHST_SETTING_ROW
};

struct SettingValueRow {
    std::uint32_t setting;
    std::int32_t value;
    const char* word;
    const char* meaning;
};

// Those of one setting stand together, in ascending order.
inline constexpr SettingValueRow settingValueRows[] = {
#define ZHST_SETTING_VALUE_ROW(owner, name, value, word, meaning) {zhst::setting::owner, value, word, meaning},
    ZHST_SETTING_VALUES(ZHST_SETTING_VALUE_ROW)
#undef ZHST_SETTING_VALUE_ROW
#define ZHST_FILE_TYPE_ROW(number, name, shortName, command, code, form, separator, quotes, hex, meaning) \
    {zhst::setting::SendFileType, number, shortName, meaning},
        ZHST_PC_FILE_TYPES(ZHST_FILE_TYPE_ROW)
#undef ZHST_FILE_TYPE_ROW
#define ZHST_FILE_TYPE_ROW(number, name, shortName, command, code, form, separator, quotes, hex, meaning) \
    {zhst::setting::ReceiveFileType, number, shortName, meaning},
            ZHST_PC_FILE_TYPES(ZHST_FILE_TYPE_ROW)
#undef ZHST_FILE_TYPE_ROW
};

// Of every switch.
inline constexpr SettingValueRow switchValueRows[] = {{0, 0, "no", ""}, {0, 1, "yes", ""}};

// The values by name of a setting; of a choice there are no others.
constexpr std::span<const SettingValueRow> valuesOf(const SettingRow& setting) {
    if (setting.kind == SettingKind::Switch) return switchValueRows;
    const auto isOfIt = [&](const SettingValueRow& row) { return row.setting == setting.number; };
    const auto first = std::ranges::find_if(settingValueRows, isOfIt);
    return {first, std::find_if_not(first, std::end(settingValueRows), isOfIt)};
}

// A word of the table, whatever its setting's kind; null for a value without one.
constexpr const SettingValueRow* valueRow(const SettingRow& setting, std::int32_t value) {
    for (const SettingValueRow& row : valuesOf(setting))
        if (row.value == value) return &row;
    return nullptr;
}

static_assert(std::ranges::all_of(settingRows, [](const SettingRow& row) {
    return (row.kind == SettingKind::Choice) <= !valuesOf(row).empty() &&
           (row.kind == SettingKind::Text) <= valuesOf(row).empty();
}));

}  // namespace emulator

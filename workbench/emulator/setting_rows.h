#pragma once

#include <cstdint>

#include "Z7XFRPCS/settings.h"

// The settings as rows, for whoever goes through them all.
namespace emulator {

enum class SettingKind { Int, Text };

struct SettingRow {
    std::uint32_t number;
    const char* name;
    SettingKind kind;
};

inline constexpr SettingRow settingRows[] = {
#define ZHST_SETTING_ROW(number, name, kind) {number, #name, SettingKind::kind},
    ZHST_SETTINGS(ZHST_SETTING_ROW)
#undef ZHST_SETTING_ROW
};

}  // namespace emulator

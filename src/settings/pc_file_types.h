#pragma once

#include <cstdint>

// The seven PC file types: number, name, the progress dialog's command that shows it, and whether records are text.
namespace settings {

enum PcFileType : std::int32_t {
    AsciiText = 0,        // fields at fixed positions
    BasicSequential = 1,  // commas, character fields always in double quotes
    CommaSeparated = 2,   // the locale's list separator, double quotes where needed
    BasicRandom = 3,      // binary records of the host record length
    NoConversion = 4,     // host record bytes unchanged
    TabDelimited = 5,     // tabs, double quotes where needed
    Dif = 6,
};

struct PcFileTypeRow {
    PcFileType type;
    const char* name;
    std::uint32_t progressCommand;
    bool isText;
};

inline constexpr PcFileTypeRow pcFileTypes[] = {
    {AsciiText, "text", 29, true},
    {BasicSequential, "basic", 34, true},
    {CommaSeparated, "csv", 32, true},
    {BasicRandom, "random", 30, false},
    {NoConversion, "none", 31, false},
    {TabDelimited, "tab", 33, true},
    {Dif, "dif", 35, true},
};

// Null for a number that is no PC file type.
constexpr const PcFileTypeRow* pcFileType(std::int32_t type) {
    return type >= AsciiText && type <= Dif ? &pcFileTypes[type] : nullptr;
}

static_assert([] {
    for (const PcFileTypeRow& row : pcFileTypes)
        if (pcFileType(row.type) != &row) return false;
    return true;
}());

// Types whose records are lines or DIF tuples.
constexpr bool isTextLike(std::int32_t type) {
    const PcFileTypeRow* row = pcFileType(type);
    return row && row->isText;
}

}  // namespace settings

#pragma once

#include <cstdint>

#include "Z7XFRPCS/settings.h"

// The seven PC file types, a row each.
namespace settings {

enum PcFileType : std::int32_t {
#define PC_FILE_TYPE(number, name, shortName, command, code, form, separator, quotes, hex, meaning) name = number,
    ZHST_PC_FILE_TYPES(PC_FILE_TYPE)
#undef PC_FILE_TYPE
};

enum class RecordForm { Lines, Tuples, Binary, Unchanged };
enum class Separator { None, Comma, Tab, List };
enum class Quotes { Never, WhereNeeded, Always };
enum class HexDigits { Bare, Quoted };

struct PcFileTypeRow {
    PcFileType type;
    const char* name;
    std::uint32_t progressCommand;
    RecordForm form;
    Separator separator;
    Quotes quotes;  // around character fields
    HexDigits hex;

    // Records are lines or tuples.
    constexpr bool isText() const { return form == RecordForm::Lines || form == RecordForm::Tuples; }
    // Fields stand at fixed positions, numbers right-aligned.
    constexpr bool isFixed() const { return form == RecordForm::Lines && separator == Separator::None; }
};

inline constexpr PcFileTypeRow pcFileTypes[] = {
#define PC_FILE_TYPE(number, name, shortName, command, code, form, separator, quotes, hex, meaning) \
    {name, shortName, command, RecordForm::form, Separator::separator, Quotes::quotes, HexDigits::hex},
    ZHST_PC_FILE_TYPES(PC_FILE_TYPE)
#undef PC_FILE_TYPE
};

// Null for a number that is no PC file type.
constexpr const PcFileTypeRow* pcFileType(std::int32_t type) {
    return type >= AsciiText && type <= Dif ? &pcFileTypes[type] : nullptr;
}

// The row by which records of any number are treated: one that is no PC file type leaves them unchanged.
constexpr const PcFileTypeRow& recordRules(std::int32_t type) {
    const PcFileTypeRow* row = pcFileType(type);
    return row ? *row : pcFileTypes[NoConversion];
}

static_assert([] {
    for (const PcFileTypeRow& row : pcFileTypes)
        if (pcFileType(row.type) != &row) return false;
    return true;
}());

}  // namespace settings

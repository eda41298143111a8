#pragma once

#include <cstdint>
#include <span>

#include "settings/pc_file_types.h"

// The codes of PC file descriptions and the system's own values behind them; one set of tables for reading and writing.
namespace fdf {

inline constexpr std::int32_t NoCode = -1;

struct CodeRow {
    std::uint8_t code;   // never 0
    std::int32_t value;  // -1: a code that is known but not supported
};
using FdfCodeTable = std::span<const CodeRow>;

// The value of the first row with the code; -1 when there is none or it is not supported.
std::int32_t fdfCodeToValue(FdfCodeTable table, std::uint32_t code);
// The code of the first row with the value; -1 when there is none.
std::int32_t valueToFdfCode(FdfCodeTable table, std::int32_t value);

extern const FdfCodeTable FdfFileTypes;    // PCFT: PcFileType
extern const FdfCodeTable FdfTimeFormats;  // PCFO options 1 to 5: values of the settings of that name
extern const FdfCodeTable FdfTimeSeparators;
extern const FdfCodeTable FdfDateFormats;
extern const FdfCodeTable FdfDateSeparators;
extern const FdfCodeTable FdfDecimalSeparators;

// PCFL: the type code of a host field type in a PC file of a type. A host type without a row of its own is written as
// character.
std::int32_t fieldTypeCode(const settings::PcFileTypeRow& pcFileType, std::uint8_t hostFieldType);

}  // namespace fdf

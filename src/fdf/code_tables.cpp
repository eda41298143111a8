#include "fdf/code_tables.h"

#include <algorithm>

#include "record/host_field.h"
#include "settings/pc_file_types.h"

namespace fdf {
namespace {

constexpr CodeRow fileTypes[] = {
#define PC_FILE_TYPE(number, name, shortName, command, code, form, separator, quotes, hex, meaning) \
    {code, settings::name},
    ZHST_PC_FILE_TYPES(PC_FILE_TYPE)
#undef PC_FILE_TYPE
    // Known, and refused.
    {4, NoCode},
    {7, NoCode},
    {8, NoCode},
};

// The comments name the keyword that a value has in the options request.
constexpr CodeRow timeFormats[] = {
    {1, 3} /*HMS*/, {2, 4} /*ISO*/, {3, 6} /*USA*/, {4, 2} /*EUR*/, {5, 5} /*JIS*/, {6, 0} /*DDS*/, {7, 1} /*DFT*/,
};
constexpr CodeRow timeSeparators[] = {
    {1, 1} /*:*/, {2, 6} /*.*/, {3, 2} /*,*/, {4, 0} /*blank*/, {5, 5} /*NUL*/, {6, 4} /*DFT*/,
};
constexpr CodeRow dateFormats[] = {
    {1, 7} /*MDY*/, {2, 2} /*DMY*/, {3, 9} /*YMD*/, {4, 6} /*JUL*/, {5, 4} /*ISO*/,
    {6, 8} /*USA*/, {7, 3} /*EUR*/, {8, 5} /*JIS*/, {9, 0} /*DDS*/, {10, 1} /*DFT*/,
};
constexpr CodeRow dateSeparators[] = {
    {1, 7} /*slash*/, {2, 3} /*hyphen*/, {3, 6} /*.*/, {4, 2} /*,*/, {5, 0} /*blank*/, {6, 5} /*NUL*/, {7, 4} /*DFT*/,
};
constexpr CodeRow decimalSeparators[] = {{1, 6} /*.*/, {2, 2} /*,*/};

// Codes of the five host field types, in the order of their numbers.
struct FieldTypeCodes {
    std::int32_t hex, binary, character, zoned, packed;
};
constexpr FieldTypeCodes FdfFieldTypesText{2, 2, 1, 2, 2};             // 1 = character, 2 = numeric
constexpr FieldTypeCodes FdfFieldTypesRandom{3, 4, 1, 5, 6};           // number forms of the PC
constexpr FieldTypeCodes FdfFieldTypesNoConversion{3, 4, 10, 11, 12};  // those of the host

const FieldTypeCodes& fieldTypes(const settings::PcFileTypeRow& pcFileType) {
    if (pcFileType.isText()) return FdfFieldTypesText;
    return pcFileType.form == settings::RecordForm::Binary ? FdfFieldTypesRandom : FdfFieldTypesNoConversion;
}

}  // namespace

const FdfCodeTable FdfFileTypes(fileTypes);
const FdfCodeTable FdfTimeFormats(timeFormats);
const FdfCodeTable FdfTimeSeparators(timeSeparators);
const FdfCodeTable FdfDateFormats(dateFormats);
const FdfCodeTable FdfDateSeparators(dateSeparators);
const FdfCodeTable FdfDecimalSeparators(decimalSeparators);

std::int32_t fdfCodeToValue(FdfCodeTable table, std::uint32_t code) {
    const auto row = std::find_if(table.begin(), table.end(), [&](const CodeRow& each) { return each.code == code; });
    return row == table.end() ? NoCode : row->value;
}

std::int32_t valueToFdfCode(FdfCodeTable table, std::int32_t value) {
    const auto row = std::find_if(table.begin(), table.end(), [&](const CodeRow& each) { return each.value == value; });
    return row == table.end() ? NoCode : row->code;
}

std::int32_t fieldTypeCode(const settings::PcFileTypeRow& pcFileType, std::uint8_t hostFieldType) {
    const FieldTypeCodes& codes = fieldTypes(pcFileType);
    switch (hostFieldType) {
        case record::Hex:
            return codes.hex;
        case record::Binary:
            return codes.binary;
        case record::Zoned:
            return codes.zoned;
        case record::Packed:
            return codes.packed;
        default:  // double-byte text, and whatever else a host may have
            return codes.character;
    }
}

}  // namespace fdf

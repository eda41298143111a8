#include "checking/pc_file_form.h"

#include <iterator>

#include "Z7XFRPCS/settings.h"

namespace checking {
namespace {

namespace setting = zhst::setting;

enum class Separator { None, Comma, Tab, List };
enum class Quotes { Never, WhereNeeded, Always };
enum class HexDigits { Bare, Quoted };

struct TypeRow {
    RecordForm form;
    Separator separator;
};

constexpr TypeRow types[] = {
#define PC_FILE_TYPE(number, name, shortName, command, code, form, separator, quotes, hex, meaning) \
    {RecordForm::form, Separator::separator},
    ZHST_PC_FILE_TYPES(PC_FILE_TYPE)
#undef PC_FILE_TYPE
};

char characterOf(Separator separator, char listSeparator) {
    switch (separator) {
        case Separator::Comma:
            return ',';
        case Separator::Tab:
            return '\t';
        case Separator::List:
            return listSeparator;
        default:
            return '\0';
    }
}

char decimalSeparatorOf(std::int32_t mode, const emulator::PcSetup& pc) {
    constexpr std::int32_t Comma = 2, OfTheLocale = 8;
    return mode == Comma || (mode == OfTheLocale && pc.decimalSeparator == ',') ? ',' : '.';
}

}  // namespace

PcFileForm pcFileForm(ZhstSession session, const emulator::PcSetup& pc, std::int32_t type, bool toSourceFile) {
    const bool isKnown = type >= 0 && type < static_cast<std::int32_t>(std::size(types));
    const TypeRow& row = types[isKnown ? type : ZhstNoConversion];
    PcFileForm form;
    form.type = type;
    form.form = row.form;
    form.separator = characterOf(row.separator, pc.listSeparator);
    form.decimalSeparator = decimalSeparatorOf(emulator::number(session, setting::DecimalSeparatorMode), pc);
    // Numbers of BasicSequential files end at the locale's list separator, and at the comma where it is no decimal one.
    const bool isBasic = type == ZhstBasicSequential;
    form.numberSeparator = isBasic ? pc.listSeparator : '\0';
    form.doublesQuotes = !isBasic;
    form.wholeLines = toSourceFile && row.form == RecordForm::Lines;
    form.noSignPosition = emulator::number(session, setting::NoSignPosition) == 1;
    form.reducesEvenPacked = emulator::number(session, setting::NumericWidthMode) == 0;
    form.hostCodePage = emulator::number(session, setting::HostCodePage);
    form.inOem = emulator::number(session, setting::ConvertToOem) != 0;
    form.pc = pc;
    form.pcPage = codepages::find(pc.ansiCodePage);
    return form;
}

}  // namespace checking

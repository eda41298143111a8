#pragma once

#include <cstdint>

#include "Z7XFRPCS/session.h"
#include "codepages.h"
#include "emulator/emulator.h"

namespace checking {

enum class RecordForm { Lines, Tuples, Binary, Unchanged };

// How the PC file of a transfer writes its records: what the settings and the PC say of it.
struct PcFileForm {
    std::int32_t type = 0;
    RecordForm form = RecordForm::Lines;
    char separator = '\0';     // between fields; 0 where they stand at fixed positions
    char numberSeparator = 0;  // a second character that ends a number, in BasicSequential files
    char decimalSeparator = '.';
    bool doublesQuotes = true;  // a quote inside a quoted text stands twice
    bool wholeLines = false;    // the line is the text of the one field, as in a source member
    bool noSignPosition = false;
    bool reducesEvenPacked = true;  // a packed number of even precision is a character narrower
    bool inOem = false;             // texts are in the PC's OEM code page
    std::int32_t hostCodePage = 37;
    emulator::PcSetup pc;
    const codepages::CodePage* pcPage = nullptr;  // the ANSI one

    bool isFixed() const { return form == RecordForm::Lines && separator == '\0' && !wholeLines; }
    bool isText() const { return form == RecordForm::Lines || form == RecordForm::Tuples; }
    // Texts of host code page 43 are UTF-8 on the PC.
    bool isUtf8() const { return hostCodePage == 43; }
};

// `type` is the PC file type that the transfer has come to, which a description may have chosen.
PcFileForm pcFileForm(ZhstSession session, const emulator::PcSetup& pc, std::int32_t type, bool toSourceFile);

}  // namespace checking

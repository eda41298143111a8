#pragma once

#include <cstdint>

#include "record/field_plan.h"
#include "services/handles.h"
#include "text/code_page_state.h"

namespace record::to_host {

// What the fields of a record are converted with.
struct FieldConversion {
    const FileRules& rules;
    const text::CodePageState& codePage;
    services::SettingsHandle settings;  // asked, number by number, for NoSignPosition
    bool toSourceFile;                  // the line goes into the field as it stands
    char* fieldBuffer;                  // one field's text on its way to the host code page
    std::uint32_t fieldBufferSize;
};

}  // namespace record::to_host

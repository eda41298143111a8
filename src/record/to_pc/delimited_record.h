#pragma once

#include <cstdint>
#include <string_view>

#include "record/host_layout.h"
#include "record/outcome.h"
#include "services/owned.h"
#include "services/text_display.h"
#include "text/code_page_state.h"

namespace record::to_pc {

// What a text record is made with.
struct DelimitedWriter {
    const HostLayout& layout;
    const text::CodePageState& codePage;
    services::SettingsHandle settings;
    services::TextDisplayHandle display;
    char* numberText;  // room for the text of any number
};

// A record of a text-like PC file type, or the cells of a row of the text display. `work` is grown to hold the
// `length` bytes of the record.
ConversionResult toDelimitedRecord(const DelimitedWriter& writer, std::string_view hostRecord,
                                   services::OwnedBytes& work, std::uint32_t& length);

}  // namespace record::to_pc

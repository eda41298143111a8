#pragma once

#include <cstdint>
#include <string_view>

#include "Z7XFRPCS/provider.h"
#include "record/host_layout.h"
#include "record/outcome.h"
#include "services/owned.h"
#include "services/text_display.h"
#include "text/code_page_state.h"

namespace record::to_pc {

// Turns the host records of a transfer into records of the PC file type of the layout's rules, or into rows of the text
// display.
class RecordToPc {
public:
    // `settings` are asked, record by record, whether blanks at a record's end go (TrimRecordBlanks).
    RecordToPc(const HostLayout& layout, const text::CodePageState& codePage, services::SettingsHandle settings,
               services::TextDisplayHandle display)
        : layout_(layout), codePage_(codePage), settings_(settings), display_(display) {}

    // Converts the host record in the first `hostLength` bytes of `buffer`, which has `capacity` bytes, in place;
    // `record` is the PC record there. One too long for that stays where it was built, until the next. A record that
    // ends inside a field gives the bytes of a character field that are there; a number that is not whole, and
    // everything behind it, gives nothing. A row of the display leaves `record` empty.
    ConversionResult convert(char* buffer, std::uint32_t hostLength, std::uint32_t capacity, std::string_view& record);

private:
    ConversionResult build(std::string_view hostRecord, std::uint32_t& length);

    const HostLayout& layout_;
    const text::CodePageState& codePage_;
    services::SettingsHandle settings_;
    services::TextDisplayHandle display_;  // 0 for output to a PC file
    services::OwnedBytes work_;            // in which records are built
    // Text of the number being converted: the longest is a hexadecimal field as large as a record, in double quotes.
    char numberText_[2 * TF_BUFFER_SIZE + 3] = {};
};

}  // namespace record::to_pc

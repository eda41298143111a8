#pragma once

#include <cstdint>

#include "record/host_layout.h"
#include "record/outcome.h"
#include "services/owned.h"
#include "text/code_page_state.h"

namespace record::to_host {

// Turns the PC records of a transfer into host records.
class RecordToHost {
public:
    RecordToHost(const HostLayout& layout, const text::CodePageState& codePage, services::SettingsHandle settings,
                 bool toSourceFile)
        : layout_(layout), codePage_(codePage), settings_(settings), toSourceFile_(toSourceFile) {}

    // Makes the buffers that are used for record after record; the host record has `hostLength` bytes. False when there
    // is no memory.
    bool allocate(std::uint32_t hostLength);

    // Converts the PC record of `recordLength` bytes at the start of `buffer` into the host record, in place, by the PC
    // file type of the layout's rules. `buffer` holds at least `hostLength` bytes.
    ConversionResult convert(char* buffer, std::uint32_t recordLength);

private:
    const HostLayout& layout_;
    const text::CodePageState& codePage_;
    services::SettingsHandle settings_;
    bool toSourceFile_;
    services::OwnedBytes hostRecord_;  // the record being built
    services::OwnedBytes fieldBuffer_;
};

}  // namespace record::to_host

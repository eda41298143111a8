#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "checking/findings.h"
#include "checking/pc_file_form.h"
#include "checking/written_record.h"
#include "host_layout.h"
#include "notes.h"

namespace checking {

// Watches the records of a receive for the first one that another program, or a send, would not read as the host has
// it. Most are passed by a look at their bytes for what may be a sign of that; the others are read.
class LossWatch {
public:
    // The host code page of the form is one that can be read.
    LossWatch(const PcFileForm& form, const HostLayout& layout);
    LossWatch(const LossWatch&) = delete;
    LossWatch& operator=(const LossWatch&) = delete;

    // The next record, as it was written and as the host gave it.
    void look(std::string_view record, std::string_view host) {
        if (isOpen_ && mayLose(record, host)) isOpen_ = written_.compare(records_, record, host);
        ++records_;
    }
    std::optional<Note> note() const;

private:
    struct Range {
        std::uint32_t offset = 0, length = 0;
    };

    bool mayLose(std::string_view record, std::string_view host) const;
    bool hasZeroByte(std::string_view host) const;

    PcFileForm form_;
    Findings findings_;
    WrittenRecord written_;
    bool isOpen_;
    bool readsAll_;             // a sign would not show
    std::vector<Range> texts_;  // of the host record, neighbours as one
    char counted_ = '\0';       // the byte of a meaning that a text might hold bare; 0 for none
    std::uint64_t wanted_ = 0;  // how many of it there are in a record that loses nothing
    char allowed_ = ' ';        // the one byte below the blank that may stand in a line
    std::uint64_t records_ = 0;
};

}  // namespace checking

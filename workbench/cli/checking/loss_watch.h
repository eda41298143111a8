#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "checking/findings.h"
#include "checking/pc_file_form.h"
#include "checking/written_record.h"
#include "host_layout.h"
#include "notes.h"

namespace checking {

// Watches the records of a receive for the first one that another program, or a send, would not read as the host has
// it. The first one is read, since a file of which no record can be read begins with it; others are passed by a look at
// the bytes of their texts on the host, unless one of these may be lost.
class LossWatch {
public:
    // The host code page of the form is one that can be read.
    LossWatch(const PcFileForm& form, const HostLayout& layout);
    LossWatch(const LossWatch&) = delete;
    LossWatch& operator=(const LossWatch&) = delete;

    // The next record, as it was written and as the host gave it.
    void look(std::string_view record, std::string_view host) {
        if (isOpen_ && (records_ == 0 || mayLose(host))) isOpen_ = written_.compare(records_, record, host);
        ++records_;
    }
    std::optional<Note> note() const;
    const PcFileForm& form() const { return form_; }

private:
    struct Range {
        std::uint32_t offset = 0, length = 0;
    };

    bool mayLose(std::string_view host) const;

    PcFileForm form_;
    Findings findings_;
    WrittenRecord written_;
    std::vector<Range> texts_;                // of the host record, neighbours as one
    std::array<std::uint8_t, 256> isSign_{};  // 1 for a byte of a host text that may be lost
    bool areControls_ = true;                 // every one of these
    bool isOpen_;
    bool readsAll_;  // bytes alone are no characters
    std::uint64_t records_ = 0;
};

}  // namespace checking

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "checking/findings.h"
#include "checking/host_text.h"
#include "checking/pc_file_form.h"
#include "checking/record_fields.h"

namespace checking {

// Compares PC records with the host records that were made of them, field by field, and tells what differs.
class RecordCheck {
public:
    // `placeOf` names the record of an index, counted from 0; it is asked for findings that are told in full.
    RecordCheck(const PcFileForm& form, const HostLayout& layout, Findings& findings,
                std::function<std::string(std::uint64_t)> placeOf);

    // `host` has the layout's bytes.
    void compare(std::uint64_t index, std::string_view record, std::string_view host);
    // The record was refused, at the field of that number (from 1), or 0 where nobody said. `otherwise` is the reason
    // when none is found here.
    void refuse(std::uint64_t index, std::string_view record, std::uint32_t fieldNumber, const std::string& otherwise);

private:
    bool isNothing(std::string_view surplus) const;
    std::string_view withoutSeparator(std::string_view surplus) const;
    std::string shapeReason(std::size_t at) const;
    void compareSurplus(std::uint64_t index, std::string_view record);
    bool compareShape(std::uint64_t index, std::size_t at);
    void compareText(std::uint64_t index, std::size_t at, std::string_view host);
    void compareNumber(std::uint64_t index, std::size_t at, std::string_view host);
    void compareHex(std::uint64_t index, std::size_t at, std::string_view host);
    void compareBytes(std::uint64_t index, std::size_t at, std::string_view host);
    void numberDiffers(std::uint64_t index, std::size_t at, std::string_view host);
    void textDiffers(std::uint64_t index, std::size_t at, std::string_view host);
    void tell(Fault fault, std::uint64_t index, std::size_t at, const std::string& stored, const std::string& reason);
    std::string storedNumber(const HostColumn& column, std::string_view host) const;
    std::size_t findRefused(std::string& reason) const;
    bool isGrouped(const HostColumn& column) const;

    const PcFileForm& form_;
    const std::vector<HostColumn>& columns_;
    Findings& findings_;
    std::function<std::string(std::uint64_t)> placeOf_;
    HostText texts_;
    RecordFields fields_;
};

}  // namespace checking

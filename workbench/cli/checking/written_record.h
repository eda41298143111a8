#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checking/findings.h"
#include "checking/host_text.h"
#include "checking/pc_file_form.h"
#include "checking/record_fields.h"

namespace checking {

// Reads the PC records of a receive as another program does, and compares what it gets with the host records.
class WrittenRecord {
public:
    // `placeOf` names the record of an index for findings that are told in full.
    WrittenRecord(const PcFileForm& form, const HostLayout& layout, Findings& findings,
                  std::function<std::string(std::uint64_t)> placeOf);

    // Both as they went by, the PC record with its line end. A host record may end before the last field. False when
    // something was found.
    bool compare(std::uint64_t index, std::string_view record, std::string_view host);

private:
    // Each gives what it has told; nothing when the field is read as the host has it.
    std::optional<Fault> compareText(std::uint64_t index, std::size_t at, std::string_view host);
    std::optional<Fault> compareNumber(std::uint64_t index, std::size_t at, std::string_view host);
    bool mayHoldLineEnd(std::string_view record) const;
    bool findLineEnd(std::uint64_t index, std::string_view host);
    Fault faultOf(const FieldText& field, std::string_view host) const;
    Fault tellText(Fault fault, std::uint64_t index, std::size_t at, std::string_view host);
    Fault tell(Fault fault, std::uint64_t index, std::size_t at, const std::string& text, const std::string& stored,
               const std::string& reason);

    const PcFileForm& form_;
    const std::vector<HostColumn>& columns_;
    Findings& findings_;
    std::function<std::string(std::uint64_t)> placeOf_;
    HostText texts_;
    RecordFields fields_;
};

// The record without the line end that the library writes behind it.
inline std::string_view withoutLineEnd(const PcFileForm& form, std::string_view record) {
    if (form.form == RecordForm::Lines && record.ends_with("\r\n")) record.remove_suffix(2);
    return record;
}

// What of a host record belongs to a column; shorter, or empty, where the record ends before.
std::string_view partOf(const HostColumn& column, std::string_view host);

}  // namespace checking

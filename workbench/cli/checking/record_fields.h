#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "checking/pc_file_form.h"
#include "host_layout.h"

namespace checking {

// The text of one field as it stands in a PC record.
struct FieldText {
    std::string_view text;    // between its quotes, if there are any; quotes inside stand as they are written
    std::string_view behind;  // what stands between the closing quote and the delimiter
    bool isQuoted = false;
    bool isClosed = true;      // its quote has an end
    bool isMissing = false;    // the record ends before
    bool isWrongKind = false;  // DIF: a number where the host has a text, or the reverse

    // Without quotes and doubling.
    std::string plain(const PcFileForm& form) const;
};

// Splits PC records into the texts of their fields: as a person reads them, who knows the layout and the PC file type,
// and so also where the transfer library would not follow.
class RecordFields {
public:
    RecordFields(const PcFileForm& form, const std::vector<HostColumn>& columns);

    // The views are into `record`. Nothing is allocated.
    void split(std::string_view record);

    const std::vector<FieldText>& fields() const { return fields_; }
    // What stands behind the last field, with its delimiter; of a tuple the lines that end it are no part of it.
    std::string_view surplus() const { return surplus_; }

private:
    void splitDelimited(std::string_view rest);
    void splitFixed(std::string_view rest);
    void splitTuple(std::string_view rest);
    static void takeTupleText(std::string_view& rest, FieldText& field);
    void splitBytes(std::string_view rest);
    void takeQuoted(std::string_view& rest, FieldText& field) const;
    std::size_t endOf(std::string_view rest, bool isNumber) const;
    std::uint32_t fixedWidth(const HostColumn& column, std::string_view rest) const;
    void missFrom(std::size_t index);

    const PcFileForm& form_;
    const std::vector<HostColumn>& columns_;
    bool hasLeadBytes_;
    std::vector<FieldText> fields_;
    std::string_view surplus_;
};

}  // namespace checking

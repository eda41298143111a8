#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "checking/pc_file_form.h"
#include "checking/record_fields.h"

namespace checking {

// What a PC file as a whole gives away about itself.

// "UTF-8", "UTF-16" by the mark in front of a file; empty without one.
std::string markedEncoding(const std::filesystem::path& path);

// Whether a record holds the names of the fields instead of data.
bool isHeaderLine(const std::vector<FieldText>& fields, const std::vector<HostColumn>& columns);

// Without its line end, and without a mark in front.
std::string firstLine(const std::filesystem::path& path);
// Whether a line that is taken for one of field names holds the name of any.
bool holdsFieldName(std::string_view line, RecordFields& fields, const HostLayout& layout);

// Looks for UTF-8 in a file that is to be in the PC's code page: every character beyond ASCII would have to be one.
class Utf8Watch {
public:
    explicit Utf8Watch(const PcFileForm& form);

    // True for the first record that shows it.
    bool look(std::string_view record) {
        if (!isOpen_ || isAscii(record)) return false;
        return lookClosely(record);
    }
    bool isUtf8() const { return isOpen_ && isSeen_; }
    const std::string& word() const { return word_; }  // around the first such character, as it stands

private:
    static bool isAscii(std::string_view text);
    bool lookClosely(std::string_view record);

    bool isOpen_;
    bool needsThreeBytes_;  // two may well be a pair of a double-byte code page
    bool isSeen_ = false;
    std::string word_;
};

}  // namespace checking

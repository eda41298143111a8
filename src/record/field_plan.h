#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "record/host_field.h"
#include "settings/pc_file_types.h"
#include "settings/transfer_settings.h"

namespace record {

// What a field ends at: one of two characters, which may be the same.
struct Delimiters {
    char first, second;
};

// How the PC file of a transfer writes its fields, in either direction.
struct FileRules {
    // `fileType` is the PC file type of the direction, of any value. Cells of the text display are set apart by blanks.
    FileRules(const settings::TransferSettings& snapshot, std::int32_t fileType, bool toDisplay = false);

    // Whether a text has no byte of a meaning: no double quote, none of the characters that have a text quoted, no zero
    // and no first byte of a pair.
    bool isPlain(std::string_view text) const {
        return std::all_of(text.begin(), text.end(),
                           [this](char byte) { return plain_[static_cast<std::uint8_t>(byte)]; });
    }
    // What has a text quoted besides a double quote: the comma, whatever the locale's list separator, or the tab.
    char quotedCharacter() const { return type.separator == settings::Separator::Tab ? '\t' : ','; }

    const settings::PcFileTypeRow& type;
    char separator;  // between fields; 0 for none
    char decimalSeparator;
    // In BasicSequential files a comma delimits besides the list separator, unless the field is a number and the comma
    // its decimal separator.
    Delimiters hexDelimiters, numberDelimiters;
    bool evenPackedIsReduced;  // a packed number of even precision has no place for its pad nibble

private:
    bool plain_[256];
};

// What every record asks of a field, worked out once when the field's description has arrived.
struct FieldPlan {
    static constexpr std::uint32_t LargestBinary = 8;  // bytes of a binary number that has a text form

    FieldPlan(const HostField& field, const FileRules& rules);

    bool hasTextForm() const { return type != Binary || bytes <= LargestBinary; }

    std::uint8_t type;         // HostFieldType
    bool isCharacter;          // everything else takes the way of numbers, hexadecimal fields included
    bool skipsPadNibble;       // the first nibble of a packed number is none of its digits
    bool isFixed;              // numbers fill their width
    bool isQuoted;             // always between double quotes
    char decimalSeparator;     // of this file
    std::uint32_t bytes;       // in the host record
    std::int32_t decimals;     // -1: character field
    std::uint32_t width;       // characters of the text form; a zoned or packed number's begins with the sign position
    std::string_view difHead;  // what a DIF value begins with; empty in other files
    std::string_view difEnd;   // what it ends with
};

// One field of the layout and its plan.
struct PlannedField {
    PlannedField(std::string_view description, const FileRules& rules) : field(description), plan(field, rules) {}

    HostField field;
    FieldPlan plan;
    std::uint32_t columnWidth = 0;  // of the text display; 0 until the columns are defined
    PlannedField* next = nullptr;   // in host order
};

}  // namespace record

#pragma once

#include <cstdint>
#include <string_view>

#include "record/field_plan.h"
#include "record/to_host/host_number.h"

// The text of a number in a PC record, made ready for the host's form.
namespace record::to_host {

// Both lay the text of a zoned or packed number out in its working text. fixedText takes the characters as they stand,
// `width` of them, with blanks for those that the record is short of.
void fixedText(std::string_view text, const FieldPlan& plan, std::uint32_t width, WorkingText& working);
// delimitedText moves the number to its place: the integer part in front of the point, what is missing of the fraction
// made up with zeros, what is too much of it cut. False when the number does not fit, or other text stands behind it.
bool delimitedText(std::string_view text, const FieldPlan& plan, WorkingText& working);

// Reads the text of a binary number, in units of its last decimal place. Fraction digits beyond the decimals are cut;
// of those that are missing zeros take the place, unless the text `isFixed`. False when it is no number.
bool readBinary(std::string_view text, const FieldPlan& plan, bool isFixed, BinaryNumber& number);

}  // namespace record::to_host

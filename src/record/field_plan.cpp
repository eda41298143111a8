#include "record/field_plan.h"

#include "record/dif_pieces.h"
#include "text/double_byte.h"

namespace record {
namespace {

char separatorOf(settings::Separator separator, char listSeparator) {
    switch (separator) {
        case settings::Separator::Comma:
            return ',';
        case settings::Separator::Tab:
            return '\t';
        case settings::Separator::List:
            return listSeparator;
        default:
            return '\0';
    }
}

Delimiters delimitersOf(const settings::PcFileTypeRow& type, char listSeparator, bool isCommaTaken) {
    if (type.form == settings::RecordForm::Tuples) return {'\r', '\n'};
    if (type.separator == settings::Separator::Tab) return {'\t', '\t'};
    const bool isComma = type.separator == settings::Separator::Comma && !isCommaTaken;
    return {listSeparator, isComma ? ',' : listSeparator};
}

// A sign and 5, 10 or 19 digits.
std::uint32_t binaryTextWidth(std::uint32_t bytes) { return bytes <= 2 ? 6 : bytes <= 4 ? 11 : 20; }

// Of even precision, and so with a nibble in front that is no digit of the value. Without a declared precision there is
// nothing to go by.
bool hasPadNibble(const HostField& field) {
    return field.type() == Packed && field.precision() > 0 && field.precision() + 2 == 2 * field.length();
}

std::uint32_t textWidth(const HostField& field, bool skipsPadNibble) {
    const std::uint32_t point = field.decimals() > 0 ? 1 : 0;
    switch (field.type()) {
        case Hex:
            return 2 * field.length();
        case Binary:
            return binaryTextWidth(field.length());
        case Zoned:
            return field.length() + 1 + point;
        case Packed:
            return 2 * field.length() + point - (skipsPadNibble ? 1 : 0);
        default:
            return field.length();
    }
}

}  // namespace

FileRules::FileRules(const settings::TransferSettings& snapshot, std::int32_t fileType, bool toDisplay)
    : type(settings::recordRules(fileType)),
      separator(toDisplay ? ' ' : separatorOf(type.separator, snapshot.listSeparator)),
      decimalSeparator(snapshot.decimalSeparator),
      hexDelimiters(delimitersOf(type, snapshot.listSeparator, false)),
      numberDelimiters(delimitersOf(type, snapshot.listSeparator, decimalSeparator == ',')),
      evenPackedIsReduced(snapshot.numericWidthMode == 0) {
    for (std::uint32_t byte = 0; byte < sizeof(plain_); ++byte)
        plain_[byte] = !text::isLeadByte(static_cast<char>(byte));
    for (const char special : {'\0', '"', quotedCharacter()}) plain_[static_cast<std::uint8_t>(special)] = false;
}

FieldPlan::FieldPlan(const HostField& field, const FileRules& rules)
    : type(field.type()),
      isCharacter(field.isCharacter()),
      skipsPadNibble(rules.evenPackedIsReduced && hasPadNibble(field)),
      isFixed(rules.type.isFixed()),
      isQuoted(field.isCharacter() ? rules.type.quotes == settings::Quotes::Always
                                   : field.type() == Hex && rules.type.hex == settings::HexDigits::Quoted),
      decimalSeparator(rules.decimalSeparator),
      bytes(field.length()),
      decimals(field.decimals()),
      width(textWidth(field, skipsPadNibble)) {
    if (rules.type.form != settings::RecordForm::Tuples) return;
    const bool isText = field.isCharacter() || field.type() == Hex;
    difHead = isText ? dif::StringHead : dif::NumberHead;
    difEnd = isText ? dif::LineEnd : dif::NumberEnd;
}

}  // namespace record

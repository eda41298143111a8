#include "record/host_field.h"

#include <algorithm>
#include <cstring>

#include "Z7XFRPCS/settings.h"
#include "settings/pc_file_types.h"
#include "text/double_byte.h"

namespace record {
namespace {

// A sign and 5, 10 or 19 digits.
std::uint32_t binaryTextWidth(std::uint32_t bytes) { return bytes <= 2 ? 6 : bytes <= 4 ? 11 : 20; }

}  // namespace

HostField::HostField(const messages::Owner& owner, const char* description,
                     const settings::TransferSettings* transferSettings)
    : owner_(owner), transferSettings_(transferSettings) {
    std::memcpy(description_, description, DescriptionSize);
    description_[NameEnd] = '\0';
    const std::string_view name = text::trimmedEnd(std::string_view(this->name()));
    description_[NameOffset + name.size()] = '\0';
}

FieldLength HostField::fieldLength() const {
    const auto low = static_cast<std::uint8_t>(description_[1]);
    const auto high = static_cast<std::uint8_t>(description_[2]);
    if (isNumber()) return {low, high};
    return {static_cast<std::uint32_t>(low | high << 8), type() == Hex ? 0 : -1};
}

std::uint32_t HostField::nameLength() const { return static_cast<std::uint32_t>(std::strcspn(name(), " ")); }

// A packed field of even precision has a pad nibble in front, which its text leaves out.
bool HostField::dropsPadNibble(std::uint32_t bytes) const {
    return transferSettings_->numericWidthMode == 0 && precision() > 0 && precision() + 2 == 2 * bytes;
}

std::uint32_t HostField::fieldTextWidth(char firstCharacter) const {
    const FieldLength length = fieldLength();
    const std::uint32_t point = length.decimals > 0 ? 1 : 0;
    std::uint32_t width = 0;
    switch (type()) {
        case Hex:
            return 2 * length.bytes;
        case Binary:
            return binaryTextWidth(length.bytes);
        case Zoned:
            width = length.bytes + 1 + point;
            break;
        case Packed:
            width = 2 * length.bytes + point - (dropsPadNibble(length.bytes) ? 1 : 0);
            break;
        default:
            return length.bytes;
    }
    return hasSignPosition(firstCharacter) || width == 0 ? width : width - 1;
}

bool HostField::hasSignPosition(char firstCharacter) const {
    if (firstCharacter == '\0' || transferSettings_->sendFileType != settings::AsciiText) return true;
    if (services::GetSetting(owner_.settings, zhst::setting::NoSignPosition) == 1) return false;
    return firstCharacter == ' ' || firstCharacter == '-';
}

}  // namespace record

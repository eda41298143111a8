#pragma once

#include <cstdint>
#include <string_view>

#include "messages/box.h"
#include "services/handles.h"
#include "settings/transfer_settings.h"

namespace record {

// Type codes of a host field description. Every other code is treated as Character; 7 and 8 carry double-byte text.
enum HostFieldType : std::uint8_t {
    Hex = 0,
    Binary = 1,     // signed, big-endian, 2 or 4 bytes
    Character = 2,  // in the host code page
    Zoned = 3,      // a digit per byte in the low nibble, the sign in the last byte's high nibble
    Packed = 4,     // two digits per byte, the sign in the last nibble
    DoubleByteOnly = 7,
    DoubleByteOpen = 8,
};

inline constexpr std::uint32_t DescriptionSize = 40;

// What every conversion asks of a field: its bytes on the host, and its decimal positions (-1 = a character field;
// hexadecimal fields have 0).
struct FieldLength {
    std::uint32_t bytes;
    std::int32_t decimals;
    bool isCharacter() const { return decimals < 0; }
};

// One field of the host record layout.
//
// Description, 40 bytes:  0 type; 1-2 for types 1, 3, 4 the length (binary: bytes, zoned: digits, packed: bytes) and
// the decimal positions, for all others the 16-bit length, low byte first; 3-32 name, blank padded; 33 declared digits.
class HostField {
public:
    // Takes 40 bytes of description. The name keeps at most 29 characters, without trailing blanks.
    HostField(const messages::Owner& owner, const char* description,
              const settings::TransferSettings* transferSettings);

    std::uint8_t type() const { return static_cast<std::uint8_t>(description_[0]); }
    bool isNumber() const { return type() == Binary || type() == Zoned || type() == Packed; }
    const char* name() const { return description_ + NameOffset; }
    // Declared digits of a numeric field.
    std::uint32_t precision() const { return static_cast<std::uint8_t>(description_[PrecisionOffset]); }
    FieldLength fieldLength() const;

    // Name characters before the first blank or the end.
    std::uint32_t nameLength() const;

    // Width of the field's text form. On the send side `firstCharacter` is the first one of the field's text: a zoned
    // or packed field of an AsciiText file that begins with neither a blank nor '-' (or any, with the setting
    // NoSignPosition 1) has no sign position, and is one narrower. 0 on the receive side.
    std::uint32_t fieldTextWidth(char firstCharacter) const;
    // Whether the text form begins with a position for the sign, by the rule above.
    bool hasSignPosition(char firstCharacter) const;

    const settings::TransferSettings& transferSettings() const { return *transferSettings_; }

    std::uint32_t columnWidth = 0;  // of the text display; 0 until the columns are defined
    HostField* next = nullptr;      // in host order

private:
    static constexpr std::uint32_t NameOffset = 3;
    static constexpr std::uint32_t NameEnd = 32;
    static constexpr std::uint32_t PrecisionOffset = 33;
    static_assert(PrecisionOffset < DescriptionSize);

    bool dropsPadNibble(std::uint32_t bytes) const;

    messages::Owner owner_;
    char description_[DescriptionSize] = {};
    const settings::TransferSettings* transferSettings_;
};

}  // namespace record

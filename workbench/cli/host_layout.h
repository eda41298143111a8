#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Z7XFRPCS/session.h"
#include "exit_status.h"
#include "pc_text.h"
#include "transfer_library.h"

// The fields of a host file, as the host describes them.

// Type codes of a field; every other is text, DATE and TIME among them.
namespace column_type {
inline constexpr std::uint8_t Hex = 0, Binary = 1, Character = 2, Zoned = 3, Packed = 4, DoubleByte = 7, Open = 8;
}  // namespace column_type

inline constexpr std::size_t DescriptionBytes = 40;
// The item of the monitor store that a description goes to, in a receive.
inline constexpr std::string_view DescriptionItem = "XDTI";

struct HostColumn {
    std::array<char, DescriptionBytes> description{};  // as the host gave it
    std::string name;                                  // without the blanks behind it
    std::uint8_t type = column_type::Character;
    std::uint32_t length = 0;    // bytes in the host record
    std::uint32_t decimals = 0;  // of numbers
    std::uint32_t digits = 0;    // declared digits of a number; 0 when the host does not say
    std::uint32_t codePage = 0;  // host code page of a text; 0 when the host names none that is known
    std::uint32_t offset = 0;    // bytes in front of it in the host record

    bool isNumber() const {
        return type == column_type::Binary || type == column_type::Zoned || type == column_type::Packed;
    }
    bool isText() const { return type != column_type::Hex && !isNumber(); }
};

// From the 40 bytes of a description.
HostColumn hostColumn(std::string_view description, std::uint32_t offset);

struct HostLayout {
    std::vector<HostColumn> columns;  // in host order; empty when the host gave none
    std::string refusal;              // what the host or the library said instead, in UTF-8
    ExitStatus status = ExitFailed;   // that the refusal stands for

    std::uint32_t recordLength() const;
    // Null when there is no column of the name, letters compared without case.
    const HostColumn* find(std::string_view name) const;
};

// A session of its own with the settings of another one, and no clauses.
ZhstSession copyOfSession(ZhstSession session);

// Asks the host, reached by the settings of `session`, for the layout of `hostFile` (LIB/FILE or LIB/FILE(MBR), in the
// PC's code page): by a query of its own that is cancelled behind the field descriptions, so that no record is fetched
// and no PC file is opened. Nothing is shown, and nothing of the session is changed. To be called while the session has
// no client: the library keeps one current client only.
HostLayout askHostLayout(const TransferLibrary& library, const PcText& pcText, ZhstSession session,
                         const std::string& hostFile);

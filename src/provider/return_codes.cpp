#include "provider/return_codes.h"

#include <algorithm>
#include <iterator>

namespace provider {
namespace {

constexpr std::uint32_t GeneralHelp = 4254;

// Codes of the emulator's own providers, with their help ids.
struct HelpRow {
    std::uint16_t returnCode;
    std::uint32_t helpId;
};
constexpr HelpRow ownProviderCodes[] = {
    {0x0005, 1200}, {0x0006, 1201}, {0x0007, 1202}, {0x0016, 1203}, {0x001C, 1204}, {0x0032, 1205},
    {0x0033, 1206}, {0x0037, 1207}, {0x0048, 1208}, {0x004B, 1209}, {0x0051, 1210}, {0x0087, 1211},
    {0x00D4, 1240}, {0x00D5, 1241}, {0x00D7, 1242}, {0x00D8, 1243}, {0x00EC, 1244}, {0x00F5, 1250},
};

// Codes of the transfer function in ascending order; the first has text and help 500, the next 501, and so on.
constexpr std::uint32_t FirstTransferIndex = 500;
constexpr std::uint16_t transferCodes[] = {
    0x0103, 0x0300, 0x0302, 0x0400, 0x1FFF, 0x2000, 0x2001, 0x2002, 0x2003, 0x2004, 0x2005, 0x2007, 0x2008,
    0x2009, 0x2010, 0x2011, 0x2012, 0x2013, 0x2019, 0x2020, 0x2021, 0x2022, 0x2023, 0x2024, 0x2025, 0x2026,
    0x2027, 0x2028, 0x2029, 0x2030, 0x3000, 0x3100, 0x5042, 0x5048, 0x5050, 0x5052, 0x5054, 0x5056, 0x5058,
    0x5060, 0x5062, 0x5064, 0x5066, 0x5067, 0x5071, 0x5310, 0x5311, 0x5400, 0x9999,
};
static_assert(std::size(transferCodes) == 49);
static_assert(std::is_sorted(std::begin(transferCodes), std::end(transferCodes)));
static_assert(transferCodes[0] == FirstTransferCode);

}  // namespace

std::uint32_t errorTextIndex(std::uint16_t returnCode) {
    const auto* row = std::lower_bound(std::begin(transferCodes), std::end(transferCodes), returnCode);
    if (row == std::end(transferCodes) || *row != returnCode) return 0;
    return FirstTransferIndex + static_cast<std::uint32_t>(row - transferCodes);
}

std::uint32_t helpIdOf(std::uint16_t returnCode) {
    for (const HelpRow& row : ownProviderCodes)
        if (row.returnCode == returnCode) return row.helpId;
    const std::uint32_t index = errorTextIndex(returnCode);
    return index ? index : GeneralHelp;
}

}  // namespace provider

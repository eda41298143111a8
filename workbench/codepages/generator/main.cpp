// Writes the data file of the code pages from ICU's converters.
#include <unicode/uvernum.h>

#include <cstdio>
#include <exception>
#include <fstream>

#include "data_file.h"
#include "page_builder.h"

namespace {

using codepages::LeadRange;

struct HostPage {
    std::uint32_t number;
    const char* icuName;
};

// The plain variants throughout: 0x25 is the line feed and 0x15 the new line, as on the AS/400. ICU's "swaplfnl"
// variants exchange the two for Unix services of mainframes.
constexpr HostPage HostPages[] = {
    {37, "ibm-37_P100-1995"},
    {273, "ibm-273_P100-1995"},
    {277, "ibm-277_P100-1995"},
    {278, "ibm-278_P100-1995"},
    {280, "ibm-280_P100-1995"},
    {284, "ibm-284_P100-1995"},
    {285, "ibm-285_P100-1995"},
    {290, "ibm-290_P100-1995"},
    {297, "ibm-297_P100-1995"},
    {420, "ibm-420_X120-1999"},
    {424, "ibm-424_P100-1995"},
    {500, "ibm-500_P100-1995"},
    {838, "ibm-838_P100-1995"},
    {870, "ibm-870_P100-1995"},
    {871, "ibm-871_P100-1995"},
    {875, "ibm-875_P100-1995"},
    {1025, "ibm-1025_P100-1995"},
    {1026, "ibm-1026_P100-1995"},
    {1047, "ibm-1047_P100-1995"},
    {1112, "ibm-1112_P100-1995"},
    {1122, "ibm-1122_P100-1999"},
    {1140, "ibm-1140_P100-1997"},
    {1141, "ibm-1141_P100-1997"},
    {1142, "ibm-1142_P100-1997"},
    {1143, "ibm-1143_P100-1997"},
    {1144, "ibm-1144_P100-1997"},
    {1145, "ibm-1145_P100-1997"},
    {1146, "ibm-1146_P100-1997"},
    {1147, "ibm-1147_P100-1997"},
    {1148, "ibm-1148_P100-1997"},
    {1149, "ibm-1149_P100-1997"},
    {1153, "ibm-1153_P100-1999"},
    {1154, "ibm-1154_P100-1999"},
    {1155, "ibm-1155_P100-1999"},
    {930, "ibm-930_P120-1999"},
    {933, "ibm-933_P110-1995"},
    {935, "ibm-935_P110-1999"},
    {937, "ibm-937_P110-1999"},
    {939, "ibm-939_P120-1999"},
    {1364, "ibm-1364_P110-2007"},
    {1371, "ibm-1371_P100-1999"},
    {1388, "ibm-1388_P103-2001"},
    {1390, "ibm-1390_P110-2003"},
    {1399, "ibm-1399_P110-2003"},
    // 930 and 939 with fewer user-defined characters; what they have is the same.
    {5026, "ibm-930_P120-1999"},
    {5035, "ibm-939_P120-1999"},
};

struct PcPage {
    std::uint32_t number;
    const char* icuName;
    std::vector<LeadRange> leads;
    std::vector<codepages::Correction> corrections;
};

// As Windows has them: the 125x pages with the euro sign, lead bytes as IsDBCSLeadByte knows them.
const PcPage PcPages[] = {
    {437, "ibm-437_P100-1995", {}, {{0xE6, u'\u00B5'}}},
    {850, "ibm-850_P100-1995", {}, {}},
    {852, "ibm-852_P100-1995", {}, {{0xAA, u'\u00AC'}}},
    {858, "ibm-858_P100-1997", {}, {}},
    {866, "ibm-866_P100-1995", {}, {}},
    {874, "windows-874-2000", {}, {}},
    {1250, "ibm-5346_P100-1998", {}, {}},
    {1251, "ibm-5347_P100-1998", {}, {}},
    {1252, "ibm-5348_P100-1997", {}, {}},
    {1253, "ibm-5349_P100-1998", {}, {}},
    {1254, "ibm-5350_P100-1998", {}, {}},
    {1255, "ibm-9447_P100-2002", {}, {}},
    {1256, "ibm-9448_X100-2005", {}, {}},
    {1257, "ibm-9449_P100-2002", {}, {}},
    {932, "ibm-943_P15A-2003", {{0x81, 0x9F}, {0xE0, 0xFC}}, {}},
    {936, "windows-936-2000", {{0x81, 0xFE}}, {}},
    {949, "windows-949-2000", {{0x81, 0xFE}}, {}},
    {950, "windows-950-2000", {{0x81, 0xFE}}, {}},
};

std::string dataFile() {
    std::vector<codepages::PageData> pages;
    for (const HostPage& page : HostPages) pages.push_back(codepages::buildHostPage(page.number, page.icuName));
    for (const PcPage& page : PcPages)
        pages.push_back(codepages::buildPcPage(page.number, page.icuName, page.leads, page.corrections));
    return codepages::composeDataFile(pages, "ICU " U_ICU_VERSION);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FILE\n", argv[0]);
        return 2;
    }
    try {
        const std::string bytes = dataFile();
        std::ofstream file(argv[1], std::ios::binary);
        file.write(bytes.data(), std::streamsize(bytes.size())).flush();
        if (file) return 0;
        std::fprintf(stderr, "%s: cannot be written\n", argv[1]);
        std::remove(argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}

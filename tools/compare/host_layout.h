#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "compare/random.h"
#include "emulator/emulator.h"

namespace compare {

// A PC and the host code pages of its sessions. A process keeps to one: the library works out the user's double-byte
// blank once.
struct Pc {
    std::vector<std::int32_t> hostPages;
    emulator::PcSetup setup;
    std::string pair;  // a double-byte letter, where there are; its second byte a backslash, where it can be
};
inline const std::vector<Pc> pcs = {{{37, 37, 37, 500, 43}, {}, ""},
                                    {{273, 273, 273, 37, 43}, {1252, 850, 0x0407, ',', ';'}, ""},
                                    {{930, 930, 939, 37}, {932, 932, 0x0411, '.', ','}, "\x83\x5C"},
                                    {{933, 933, 933, 37}, {949, 949, 0x0412, '.', ','}, "\xB0\xA1"},
                                    {{935, 935, 935, 37}, {936, 936, 0x0804, '.', ','}, "\xB0\xA1"},
                                    {{937, 937, 937, 37}, {950, 950, 0x0404, '.', ','}, "\xA5\x5C"}};

// Type codes of a host field; every other code is characters too.
enum FieldType : std::uint8_t {
    Hex = 0,
    Binary = 1,
    Character = 2,
    Zoned = 3,
    Packed = 4,
    PairsOnly = 7,
    PairsToo = 8
};

struct Field {
    std::uint8_t type = Character;
    std::uint32_t bytes = 0;
    std::uint32_t decimals = 0;
    std::uint32_t digits = 0;  // declared
    std::string name;

    bool isNumber() const { return type == Binary || type == Zoned || type == Packed; }
    // The 40 bytes that a provider hands over.
    std::string description() const;
};
using Layout = std::vector<Field>;

Layout randomLayout(Random& random, const Pc& pc);
// The fields of a source member, or its text alone.
Layout sourceLayout(Random& random);
// A host record of the layout.
std::string randomRecord(Random& random, const Layout& layout, const Pc& pc);

}  // namespace compare

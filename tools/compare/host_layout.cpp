#include "compare/host_layout.h"

#include <algorithm>

#include "support/host_fields.h"

namespace compare {
namespace {

void makeNumber(Random& random, Field& field) {
    field.digits = random.odd(8) ? random.pick({0u, 16u, 30u, 31u, 63u}) : random.between(1, 15);
    field.bytes = field.type == Zoned ? field.digits : field.digits / 2 + 1;
    if (field.type == Binary) {
        field.bytes = random.odd(8) ? random.pick({0u, 1u, 3u, 8u, 9u}) : random.pick({2u, 4u});
        field.digits = field.bytes == 2 ? 4 : 9;
    }
    field.decimals = random.oneIn(2) ? 0 : random.below(field.digits + 1);
    if (random.odd(20)) field.decimals = random.pick({field.digits + 2, 12u, 200u});
    if (random.odd(20)) field.digits = random.below(32);
    if (random.odd(30)) field.bytes = 0;
}

Field randomField(Random& random, const Pc& pc) {
    Field field;
    field.type = random.pick<std::uint8_t>(
        {Hex, Binary, Binary, Character, Character, Character, Zoned, Zoned, Packed, Packed, Packed});
    if (random.oneIn(pc.pair.empty() ? 20 : 4)) field.type = random.pick<std::uint8_t>({PairsOnly, PairsToo});
    if (random.odd(20)) field.type = random.pick<std::uint8_t>({5, 6, 9, 200});
    field.name = random.pick<std::string>({"F", "LONGNAME"}) + std::to_string(random.below(1000));
    if (random.odd(5))
        field.name = random.pick<std::string>({"", "SRCDTA", "SRCDTA2", "TWO WORDS", "A\"QUOTE", "T1.NAME",
                                               "NAME_OF_THIRTY_CHARACTERS_XXXX", pc.pair + pc.pair + "X" + pc.pair});
    field.bytes = random.between(1, 24);
    if (random.odd(12)) field.bytes = random.pick({0u, 255u, 256u, 1000u, 2500u});
    if (field.isNumber()) makeNumber(random, field);
    return field;
}

// EBCDIC: mostly letters, digits and blanks; what PC files quote; now and then any byte.
std::string singleByteText(Random& random, std::size_t length) {
    static const std::string Usual = "\xC1\xC2\xC3\xD1\xE2\xE9\x81\x89\xA2\xF0\xF9\x40\x40\x4B\x60";
    static const std::string Special("\x7F\x6B\x5E\x05\x7D\x00\x4E\xFF", 8);
    std::string text;
    for (std::size_t filled = random.oneIn(6) ? 0 : random.below(length + 1); filled > 0; --filled)
        text += random.odd(30) ? random.bytes(1)[0] : random.pick(random.oneIn(12) ? Special : Usual);
    return text + std::string(length - text.size(), '\x40');
}

// Pairs between shift bytes.
std::string doubleByteText(Random& random, std::size_t length) {
    std::string text = "\x0E";
    for (std::size_t pairs = 1 + random.below(length / 2 - 1); pairs > 0; --pairs) {
        const char row = random.pick(std::string("\x42\x43\x44\x45\x48\x50\x58\x6C"));
        text +=
            random.oneIn(8) ? std::string("\x40\x40") : std::string{row, static_cast<char>(random.between(65, 254))};
    }
    if (!random.odd(10)) text += '\x0F';
    return text + singleByteText(random, length - std::min(length, text.size()));
}

std::string decimalBytes(Random& random, const Field& field) {
    const std::uint32_t positions = field.type == Packed ? 2 * field.bytes - 1 : field.bytes;
    const std::uint32_t zeros = positions - std::min(positions, random.below(field.digits + 1));
    const int sign = random.pick({0xF, 0xF, 0xF, 0xC, 0xD, 0xD, 0xB, 0xA, 0x3});
    std::string bytes(field.bytes, field.type == Packed ? '\0' : '\xF0');
    const auto put = [&bytes](std::uint32_t at, std::uint32_t bits) {
        bytes[at] = static_cast<char>(bytes[at] | bits);
    };
    for (std::uint32_t at = random.odd(10) ? 0 : zeros; at < positions; ++at)
        field.type == Packed ? put(at / 2, random.below(10) << (at % 2 ? 0 : 4)) : put(at, random.below(10));
    if (field.type == Packed) put(field.bytes - 1, static_cast<std::uint32_t>(sign));
    if (field.type == Zoned) bytes.back() = static_cast<char>((bytes.back() & 0x0F) | sign << 4);
    return bytes;
}

std::string binaryBytes(Random& random, std::uint32_t bytes) {
    if (random.oneIn(10)) return '\x80' + std::string(bytes - 1, '\0');
    const std::string value = random.bytes(random.below(bytes + 1));
    return std::string(bytes - value.size(), random.pick({'\0', '\0', '\xFF'})) + value;
}

// Digits and blanks can also be sent.
std::string hexBytes(Random& random, std::uint32_t bytes) {
    std::string value = random.bytes(bytes);
    if (!random.oneIn(6))
        std::ranges::for_each(value, [](char& byte) { byte = byte % 10 < 0 ? '\x40' : '\xF0' + byte % 10; });
    return value;
}

std::string fieldBytes(Random& random, const Field& field, const Pc& pc) {
    if (field.bytes == 0) return "";
    if (random.odd(30)) return random.bytes(field.bytes);
    if (field.type == Hex) return hexBytes(random, field.bytes);
    if (field.type == Binary) return binaryBytes(random, field.bytes);
    if (field.isNumber()) return decimalBytes(random, field);
    const bool pairs = !pc.pair.empty() && field.bytes >= 4 && (field.type == PairsOnly || random.oneIn(3));
    return pairs ? doubleByteText(random, field.bytes) : singleByteText(random, field.bytes);
}

}  // namespace

std::string Field::description() const {
    const std::uint32_t second = isNumber() ? decimals : bytes >> 8;
    return hostfields::raw(type, static_cast<std::uint8_t>(bytes), static_cast<std::uint8_t>(second), name,
                           static_cast<std::uint8_t>(digits));
}

Layout randomLayout(Random& random, const Pc& pc) {
    Layout layout;
    for (std::uint32_t count = random.between(1, random.oneIn(4) ? 10 : 4); count > 0; --count)
        layout.push_back(randomField(random, pc));
    return layout;
}

Layout sourceLayout(Random& random) {
    const std::uint32_t length = random.pick({80u, 80u, 13u, 1u});
    if (!random.oneIn(6)) return {{Character, length, 0, 0, "SRCDTA"}};
    return {{Zoned, 6, 2, 6, "SRCSEQ"}, {Zoned, 6, 0, 6, "SRCDAT"}, {Character, length, 0, 0, "SRCDTA"}};
}

std::string randomRecord(Random& random, const Layout& layout, const Pc& pc) {
    std::string record;
    for (const Field& field : layout) record += fieldBytes(random, field, pc);
    if (random.odd(20)) record.resize(random.below(record.size() + 1));
    if (random.odd(30)) record += random.bytes(random.below(20));
    return record;
}

}  // namespace compare

// What the emulator and the PC make of a pair of code pages.
#include <algorithm>

#include "Z7XFRPCS/code_tables.h"
#include "Z7XFRPCS/session.h"
#include "codepages.h"

namespace codepages {
namespace {

using ByteTable = std::array<std::uint8_t, 256>;

constexpr std::uint16_t TwoPcBlanks = 0x2020;

ByteTable convertBytes(const CodePage& from, const CodePage& to) {
    ByteTable table;
    for (unsigned byte = 0; byte < 256; ++byte) {
        const char16_t character = from.toUnicode(std::uint8_t(byte));
        const auto code = character == NoCharacter ? std::nullopt : to.fromUnicode(character);
        table[byte] = code && !code->pair ? std::uint8_t(code->code) : to.substitute();
    }
    return table;
}

ByteTable identity() {
    ByteTable table;
    for (unsigned byte = 0; byte < 256; ++byte) table[byte] = std::uint8_t(byte);
    return table;
}

std::vector<std::uint8_t> singleByteTable(const CodePage& host, const CodePage& pc) {
    std::vector<std::uint8_t> table(ZhstSingleByteTableSize);
    const ByteTable toHost = pcToHost(pc, host), toPc = hostToPc(host, pc);
    std::copy(toHost.begin(), toHost.end(), table.begin() + ZhstSingleBytesToHost);
    std::copy(toPc.begin(), toPc.end(), table.begin() + ZhstSingleBytesToPc);
    return table;
}

// The other page's pair; 0 for none.
std::uint16_t convertPair(const CodePage& from, const CodePage& to, std::uint8_t first, std::uint8_t second) {
    const char16_t character = from.toUnicode(first, second);
    if (character == NoCharacter) return 0;
    const auto code = to.fromUnicode(character);
    return code && code->pair ? code->code : 0;
}

enum class RowUse { None, PrivateOnly, Characters };

// What a row for `first` would hold: nothing that converts, user-defined characters only, or more.
RowUse rowUse(const CodePage& from, const CodePage& to, std::uint8_t first) {
    RowUse use = RowUse::None;
    for (unsigned second = 0; second < 256; ++second) {
        if (convertPair(from, to, first, std::uint8_t(second)) == 0) continue;
        const char16_t character = from.toUnicode(first, std::uint8_t(second));
        if (character < 0xE000 || character > 0xF8FF) return RowUse::Characters;
        use = RowUse::PrivateOnly;
    }
    return use;
}

// A row of which nothing converts says the same as no row, so only the others take one of the 128. Should they be more
// (1388 with 936 has 135), those of user-defined characters alone give way, the highest first bytes first; their pairs
// become blanks. The host's blank, 0x40 0x40, always has its row.
std::vector<std::uint8_t> firstBytesWithRow(const CodePage& from, const CodePage& to) {
    std::vector<std::uint8_t> characters, privateOnly;
    for (unsigned first = 0; first < 256; ++first) {
        const RowUse use = rowUse(from, to, std::uint8_t(first));
        if (use == RowUse::Characters) characters.push_back(std::uint8_t(first));
        if (use == RowUse::PrivateOnly) privateOnly.push_back(std::uint8_t(first));
    }
    characters.insert(characters.end(), privateOnly.begin(), privateOnly.end());
    if (characters.size() > ZhstPairRowCount) characters.resize(ZhstPairRowCount);
    return characters;
}

std::vector<std::uint8_t> pairTable(const CodePage& from, const CodePage& to, std::uint16_t missing) {
    std::vector<std::uint8_t> table(ZhstPairTableSize);
    std::fill_n(table.begin() + ZhstPairRowNumbers, 256, ZhstPairNoRow);
    std::uint8_t row = 0;
    for (const std::uint8_t first : firstBytesWithRow(from, to)) {
        auto* out = table.data() + ZhstPairRows + ZhstPairRowSize * row;
        table[ZhstPairRowNumbers + first] = row++;
        for (unsigned second = 0; second < 256; ++second) {
            const std::uint16_t pair = convertPair(from, to, first, std::uint8_t(second));
            const std::uint16_t entry = pair != 0 ? pair : missing;
            *out++ = std::uint8_t(entry & 0xFF);
            *out++ = std::uint8_t(entry >> 8);
        }
    }
    return table;
}

// As CharToOem and its reverse do it, which leave a PC with one page for both alone.
ByteTable betweenPcPages(const CodePage& from, const CodePage& to) {
    if (from.number() == to.number()) return identity();
    ByteTable table = convertBytes(from, to);
    for (unsigned byte = 0; byte < 256; ++byte) {
        if (from.isLeadByte(std::uint8_t(byte))) table[byte] = std::uint8_t(byte);
    }
    return table;
}

}  // namespace

std::array<std::uint8_t, 256> hostToPc(const CodePage& host, const CodePage& pc) { return convertBytes(host, pc); }

std::array<std::uint8_t, 256> pcToHost(const CodePage& pc, const CodePage& host) { return convertBytes(pc, host); }

std::vector<std::uint8_t> codeTable(std::uint32_t kind, const CodePage& host, const CodePage& pc) {
    switch (kind) {
        case ZhstSingleByteTables:
            return singleByteTable(host, pc);
        case ZhstPairsToHost:
            return pairTable(pc, host, 0);
        case ZhstPairsToPc:
            return pairTable(host, pc, TwoPcBlanks);
        default:
            return {};
    }
}

PcTables pcTables(const CodePage& ansi, const CodePage& oem) {
    PcTables tables;
    for (unsigned at = 0; at < 256; ++at) {
        const auto byte = std::uint8_t(at);
        tables.leadBytes[at] = ansi.isLeadByte(byte);
        tables.upper[at] = ansi.upper(byte);
        tables.lower[at] = ansi.lower(byte);
    }
    tables.ansiToOem = betweenPcPages(ansi, oem);
    tables.oemToAnsi = betweenPcPages(oem, ansi);
    return tables;
}

}  // namespace codepages

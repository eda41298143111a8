#include "codepages.h"

#include <cstdlib>
#include <tuple>

#include "support/host_record.h"
#include "support/own_folder.h"

namespace codepages {
namespace {

// The tests' program says where it is.
const char* dataFile() { return std::getenv("Z7X_CODE_PAGES"); }

class CodePages : public OwnFolder {
protected:
    void SetUp() override {
        std::string error;
        ASSERT_TRUE(load(dataFile(), &error)) << error;
    }
};

// By the layout that the readers of kinds 5 and 6 go by.
std::uint16_t lookUp(const std::vector<std::uint8_t>& table, unsigned pair) {
    const unsigned row = table.at(25 + (pair >> 8));
    if (row == 255) return 0;
    const std::size_t at = 537 + 512 * row + 2 * (pair & 0xFF);
    return std::uint16_t(table.at(at) | table.at(at + 1) << 8);
}

TEST_F(CodePages, KnownBytesOfHostsAndPcs) {
    const std::tuple<std::uint32_t, const char*, const char*> cases[] = {
        {37, "Az09 ?[]!|@$#\"\n", "C1 A9 F0 F9 40 6F BA BB 5A 4F 7C 5B 7B 7F 25"},
        {500, "[]!|@$", "4A 5A 4F BB 7C 5B"},
        {273, "[]!|@$ÄÖÜäöüß§", "63 FC 4F BB B5 5B 4A E0 5A C0 6A D0 A1 7C"},
        {1047, "[]^", "AD BD 5F"},
        {285, "£", "5B"},
        {1140, "€", "9F"},
        {1141, "€", "9F"},
        {930, "aｱ亜\u3000b", "62 81 0E 48 67 40 40 0F 63"},
        {939, "aあい", "81 0E 44 81 44 82 0F"},
        {850, "éÄ", "82 8E"},
        {437, "µ\x1A\x1C\x7F", "E6 1A 1C 7F"},
        {858, "€", "D5"},
        {1252, "€éÿ\u0081\x1A\x7F", "80 E9 FF 81 1A 7F"},
        {932, "aｱあ\u3000", "61 B1 82 A0 81 40"},
        {949, "가\u3000", "B0 A1 A1 A1"},
        {936, "啊\u3000€", "B0 A1 A1 A1 80"},
        {950, "一\u3000", "A4 40 A1 40"},
    };
    for (const auto& [number, text, bytes] : cases) {
        SCOPED_TRACE(std::to_string(number) + " " + text);
        ASSERT_NE(find(number), nullptr);
        bool lossy = true;
        EXPECT_EQ(hexOf(find(number)->encode(text, &lossy)), bytes);
        EXPECT_FALSE(lossy);
        EXPECT_EQ(find(number)->decode(bytesOf(bytes)), text);
    }
}

TEST_F(CodePages, WhatAPageLacksIsReplaced) {
    const std::tuple<std::uint32_t, const char*, const char*> cases[] = {
        {37, "a€b", "\x81\x6F\x82"},
        {1252, "aあ", "a?"},
        {37, "\xF0\x9F\x98\x80.", "\x6F\x4B"},  // beyond U+FFFF: one sign, one substitute
        {37, "\xE3\x81.\x80", "\x6F\x4B\x6F"},  // malformed
        {930, "\x0E", "\x6F"},                  // a shift is never text
    };
    for (const auto& [number, text, bytes] : cases) {
        bool lossy = false;
        EXPECT_EQ(find(number)->encode(text, &lossy), bytes) << number << " " << text;
        EXPECT_TRUE(lossy);
    }
    EXPECT_EQ(find(939)->decode("\x0E\x44\x81\x44\x0F\x81\x0E\x44"), "あ\uFFFDa\uFFFD");
    EXPECT_EQ(find(932)->decode("\x82\xA0\x82"), "あ\uFFFD");
    EXPECT_EQ(hostToPc(*find(37), *find(1251))[0x42], '?');   // a with circumflex
    EXPECT_EQ(pcToHost(*find(1251), *find(37))[0xC0], 0x6F);  // Cyrillic A
}

TEST_F(CodePages, SingleBytesReturn) {
    for (const std::uint32_t number :
         {37, 273, 277, 278, 280, 284, 285, 297, 420, 424, 500, 870, 871, 875, 1025, 1026, 1047, 1140, 1141}) {
        ASSERT_NE(find(number), nullptr) << number;
        const CodePage &host = *find(number), &pc = *find(1252);
        const auto toPc = hostToPc(host, pc), toHost = pcToHost(pc, host);
        int shared = 0;
        for (unsigned byte = 0; byte < 256; ++byte) {
            const auto code = pc.fromUnicode(host.toUnicode(std::uint8_t(byte)));
            if (!code || pc.toUnicode(std::uint8_t(code->code)) != host.toUnicode(std::uint8_t(byte))) continue;
            EXPECT_EQ(toHost[toPc[byte]], byte) << number;
            ++shared;
        }
        EXPECT_GT(shared, 100) << number;
        EXPECT_EQ(toPc[0x40], ' ');
        EXPECT_EQ(toPc[0x6F], '?');
    }
}

TEST_F(CodePages, PairsReturn) {
    // Host page, PC page, the PC's blank, pairs at the least, and `unlike`: host pairs that come back as another one,
    // because the PC has one character for both.
    const std::tuple<std::uint32_t, std::uint32_t, std::uint32_t, int, int> cases[] = {
        {930, 932, 0x8140, 9000, 0}, {939, 932, 0x8140, 9000, 0},    {933, 949, 0xA1A1, 8000, 0},
        {935, 936, 0xA1A1, 9000, 1}, {937, 950, 0xA140, 19000, 220}, {1388, 936, 0xA1A1, 22000, 1},
    };
    for (const auto& [hostNumber, pcNumber, blank, atLeast, unlike] : cases) {
        SCOPED_TRACE(hostNumber);
        const CodePage &host = *find(hostNumber), &pc = *find(pcNumber);
        const auto toPc = codeTable(6, host, pc), toHost = codeTable(5, host, pc);
        ASSERT_EQ(toPc.size(), 66073u);
        ASSERT_EQ(toHost.size(), 66073u);
        EXPECT_EQ(lookUp(toPc, 0x4040), blank);
        EXPECT_EQ(lookUp(toHost, blank), 0x4040);
        int same = 0, other = 0;
        for (unsigned pair = 0x4040; pair <= 0xFEFE; ++pair) {
            const std::uint16_t there = lookUp(toPc, pair);
            if (there == 0 || there == 0x2020) continue;
            const std::uint16_t back = lookUp(toHost, there);
            ++(back == pair ? same : other);
            EXPECT_EQ(lookUp(toPc, back), there) << std::hex << pair;  // once changed, it stays
        }
        EXPECT_GT(same, atLeast);
        EXPECT_LE(other, unlike);
    }
}

TEST_F(CodePages, CodeTablesHaveWhatThePagesHave) {
    const CodePage &host = *find(930), &pc = *find(932);
    const auto toPc = codeTable(6, host, pc), toHost = codeTable(5, host, pc);
    EXPECT_EQ(codeTable(1, host, pc).size(), 2824u);
    EXPECT_EQ(lookUp(toPc, 0x4041), 0x2020);  // in a row, but no character
    EXPECT_EQ(lookUp(toHost, 0x8740), 0);     // a circled digit, which 930 lacks
    // 1388 has more first bytes than rows: real characters come before user-defined ones, up to the last.
    EXPECT_NE(codeTable(6, *find(1388), *find(936))[25 + 0xCD], 255);
    EXPECT_TRUE(codeTable(2, host, pc).empty());
}

TEST_F(CodePages, PcTables) {
    const PcTables western = pcTables(*find(1252), *find(850)), japanese = pcTables(*find(932), *find(932));
    EXPECT_EQ(western.upper[0xE9], 0xC9);
    EXPECT_EQ(western.lower[0xC9], 0xE9);
    EXPECT_EQ(western.upper[0xDF], 0xDF);                            // sharp s
    EXPECT_EQ(pcTables(*find(1254), *find(850)).upper[0xFD], 0xFD);  // dotless i
    EXPECT_EQ(western.ansiToOem[0xE9], 0x82);
    EXPECT_EQ(western.oemToAnsi[0x82], 0xE9);
    EXPECT_EQ(western.oemToAnsi[0xB3], '?');  // a line of a frame
    EXPECT_EQ(western.oemToAnsi[0x1B], 0x1B);
    for (std::size_t byte = 0; byte < 256; ++byte) {
        const bool lead = (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
        EXPECT_EQ(japanese.leadBytes[byte], lead) << byte;
        EXPECT_FALSE(western.leadBytes[byte]) << byte;
    }
    for (const std::size_t byte : {0x80, 0x81, 0x9F, 0xA0, 0xDF, 0xE0, 0xFC, 0xFD})
        EXPECT_EQ(japanese.ansiToOem[byte], byte);
}

TEST_F(CodePages, Page43ChangesTheLength) {
    const std::string host = "\xC1\x51\xC2";  // A, e acute, B
    char pc[8], back[6];
    EXPECT_EQ(std::string(pc, page43ToPc(host, pc, 8)), "AéB");
    EXPECT_EQ(std::string(pc, page43ToPc(host, pc, 2)), "A");  // no half character
    EXPECT_EQ(std::string(back, page43ToHost("AéB", back, 6)), host + "\x40\x40\x40");
    EXPECT_EQ(std::string(back, page43ToHost("AéB", back, 2)), host.substr(0, 2));
}

TEST_F(CodePages, DamagedDataIsRefused) {
    const std::string good = fileBytes(dataFile());
    const auto withByte = [&good](std::size_t at, char value) { return std::string(good).replace(at, 1, 1, value); };
    const std::size_t firstBody = 20 + 16 * static_cast<unsigned char>(good[16]);
    std::vector<std::pair<std::string, const char*>> cases = {
        {good + "X", "longer"},
        {withByte(0, 'X'), "not a code page data file"},
        {withByte(8, 9), "version 9"},
        {withByte(19, 1), "list of pages"},                // count
        {withByte(20 + 11, 1), "at page 37"},              // offset of the first body
        {withByte(20 + 13, 1), "at page 37"},              // its length
        {withByte(firstBody + 512 + 3, 1), "at page 37"},  // its preferences
    };
    const std::size_t lengths[] = {0, 7, 8, 19, 20, 300, good.size() / 2, good.size() - 1};
    for (const std::size_t length : lengths) cases.emplace_back(good.substr(0, length), "cut short");
    std::string error, file = path("damaged");
    for (const auto& [bytes, reason] : cases) {
        writeFile(file += "_", bytes);  // each its own: a path is read once
        EXPECT_FALSE(load(file, &error)) << reason;
        EXPECT_NE(error.find(reason), std::string::npos) << error;
    }
    EXPECT_FALSE(load("no/such/file", &error));
    EXPECT_NE(error.find("no/such/file"), std::string::npos);
    EXPECT_NE(find(37), nullptr);  // what was loaded stays
    EXPECT_EQ(find(43), nullptr);
}

}  // namespace
}  // namespace codepages

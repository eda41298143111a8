#include "codepages/codepages.h"
#include "platform/platform.h"
#include "support/transfer_fixture.h"

// PCs whose code page has two-byte characters. Where the PC cannot be chosen, the run on such a PC has these tests.

namespace {

struct Pc {
    const char* name;
    std::uint32_t codePage;  // ANSI and OEM
    std::uint16_t languageId;
    std::int32_t hostCodePage;
    const char* text;        // in three of them a second byte is that of a backslash
    const char* smallTrail;  // a character that is no letter and whose second byte is that of a small "a"
};

void PrintTo(const Pc& pc, std::ostream* stream) { *stream << pc.name; }

class DoubleBytePc : public TransferFixture, public ::testing::WithParamInterface<Pc> {
protected:
    void SetUp() override {
        TransferFixture::SetUp();
        emulator::PcSetup pc;
        pc.ansiCodePage = pc.oemCodePage = GetParam().codePage;
        pc.languageId = GetParam().languageId;
        if (!emulator::setUpPc(pc)) GTEST_SKIP() << "on another PC";
        set(setting::HostCodePage, GetParam().hostCodePage);
        std::string error;
        ASSERT_TRUE(codepages::load(binFolder() + "/codepages.dat", &error)) << error;
        useFile(CommaSeparated);
    }
    void useFile(FileType type) {
        set(setting::ReceiveFileType, type);
        set(setting::SendFileType, type);
    }
    // One record of a field of `length` bytes, shift bytes included, and another of one byte.
    void useRecord(const std::string& utf8, std::uint16_t length) {
        const auto page = static_cast<std::uint32_t>(GetParam().hostCodePage);
        hostFile.fields = {hostfields::typed(8, "G", length), hostfields::character("A", 1)};
        hostFile.records = {HostRecord().text(utf8, length, page).text("1", 1, page)};
    }
    std::string pcText() const { return codepages::find(GetParam().codePage)->encode(GetParam().text); }
};

TEST_P(DoubleBytePc, TextMakesTheWayThereAndBack) {
    useRecord(GetParam().text, 10);
    receive();
    EXPECT_EQ(pcFileBytes(), pcText() + ",1\r\n");

    set(setting::UseDescriptionFile, 1);
    set(setting::SendDescriptionFile, "pcfile.fdf");
    set(setting::CreateMode, 2);
    writeFile(path("pcfile.fdf"), "PCFDF\r\nPCFT 99\r\nPCFL G 1 10\r\nPCFL A 1 1\r\n");
    send();
    EXPECT_EQ(hexOf(hostFile.received.at(0)), hexOf(hostFile.records[0]));
    EXPECT_TRUE(user.messages.empty());

    useFile(AsciiText);
    receive();
    // The shift bytes leave blanks at the end.
    EXPECT_EQ(pcFileBytes(), pcText() + "  1\r\n");
}

TEST_P(DoubleBytePc, DoubleByteBlanksEndNoText) {
    // The library asks for the user's language once, and an earlier test may have had another.
    if (::testing::UnitTest::GetInstance()->test_to_run_count() > 1) GTEST_SKIP() << "only in a process of its own";
    useRecord(std::string(GetParam().text) + "\u3000", 14);
    receive();
    EXPECT_EQ(pcFileBytes(), pcText() + ",1\r\n");
}

TEST_P(DoubleBytePc, SecondBytesAreNoLetters) {
    std::string text = std::string(GetParam().smallTrail) + "a";
    EXPECT_TRUE(platform::IsDBCSLeadByte(static_cast<std::uint8_t>(text[0])));
    EXPECT_FALSE(platform::IsDBCSLeadByte('a'));
    EXPECT_EQ(platform::CharNextA(text.c_str()), text.c_str() + 2);
    platform::CharUpperA(text.data());
    EXPECT_EQ(text, std::string(GetParam().smallTrail) + "A");
    platform::CharToOemBuffA(text.data(), text.data(), static_cast<std::uint32_t>(text.size()));
    EXPECT_EQ(text, std::string(GetParam().smallTrail) + "A");
}

const Pc pcs[] = {{"Japanese", 932, 0x0411, 930, "表示一覧", "\x81\x61"},
                  {"Korean", 949, 0x0412, 933, "한글파일", "\xB0\x61"},
                  {"SimplifiedChinese", 936, 0x0804, 935, "文件传输", "\x81\x61"},
                  {"TraditionalChinese", 950, 0x0404, 937, "檔案功許", "\xA1\x61"}};

INSTANTIATE_TEST_SUITE_P(Pcs, DoubleBytePc, ::testing::ValuesIn(pcs),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "emulator/emulator.h"
#include "platform/platform.h"

// The PC's own functions on PCs whose code page has two-byte characters.

namespace {

struct Pc {
    const char* name;
    std::uint32_t codePage;  // ANSI and OEM
    std::uint16_t languageId;
    const char* smallTrail;  // a character that is no letter and whose second byte is that of a small "a"
};

void PrintTo(const Pc& pc, std::ostream* stream) { *stream << pc.name; }

class DoubleBytePc : public testing::TestWithParam<Pc> {
protected:
    void SetUp() override {
        emulator::reset();
        emulator::PcSetup pc;
        pc.ansiCodePage = pc.oemCodePage = GetParam().codePage;
        pc.languageId = GetParam().languageId;
        if (!emulator::setUpPc(pc)) GTEST_SKIP() << "on another PC";
    }
    void TearDown() override { emulator::reset(); }
};

TEST_P(DoubleBytePc, SecondBytesAreNoLetters) {
    const std::string small = GetParam().smallTrail;
    std::string text = small + "a";
    EXPECT_EQ(platform::GetUserDefaultLangID(), GetParam().languageId);
    EXPECT_TRUE(platform::IsDBCSLeadByte(static_cast<std::uint8_t>(text[0])));
    EXPECT_FALSE(platform::IsDBCSLeadByte('a'));
    EXPECT_EQ(platform::CharNextA(text.c_str()), text.c_str() + 2);
    platform::CharUpperA(text.data());
    EXPECT_EQ(text, small + "A");
    platform::CharToOemBuffA(text.data(), text.data(), static_cast<std::uint32_t>(text.size()));
    EXPECT_EQ(text, small + "A");
    platform::OemToCharBuffA(text.data(), text.data(), static_cast<std::uint32_t>(text.size()));
    platform::CharLowerA(text.data());
    EXPECT_EQ(text, small + "a");
}

const Pc pcs[] = {{"Japanese", 932, 0x0411, "\x81\x61"},
                  {"Korean", 949, 0x0412, "\xB0\x61"},
                  {"SimplifiedChinese", 936, 0x0804, "\x81\x61"},
                  {"TraditionalChinese", 950, 0x0404, "\xA1\x61"}};

INSTANTIATE_TEST_SUITE_P(Pcs, DoubleBytePc, testing::ValuesIn(pcs),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace

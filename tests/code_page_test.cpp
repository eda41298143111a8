#include <ostream>

#include "platform/platform.h"
#include "support/transfer_fixture.h"

namespace {

using namespace hostfields;
using Strings = std::vector<std::string>;

class CodePage : public TransferFixture {
protected:
    // The host record that a PC record becomes.
    std::string sent(const Strings& fields, const std::string& pcRecord) {
        hostFile.fields = fields;
        hostFile.received.clear();
        sendByDescription(1);
        writePcFile(pcRecord + "\r\n");
        send();
        return hostFile.received.empty() ? "nothing" : hostFile.received[0];
    }
};

TEST_F(CodePage, SingleByteInBothDirections) {
    // Codes whose characters differ from page to page, and shift codes, which mean nothing in a single-byte page. The
    // session stays the same, also behind a double-byte page.
    const struct {
        std::int32_t page;
        const char* host;
        std::string pc;
    } rows[] = {{37, "4A 5A C1 63", "\xA2!A\xC4"},   {273, "4A 5A 5F C1", "\xC4\xDC^A"},
                {500, "4A 5A C1 63", "[]A\xC4"},     {939, "C1 E9 C2 C3", "AZBC"},
                {1140, "9F 5A C1 63", "\x80!A\xC4"}, {37, "0E 0F E9 40", "\x0E\x0FZ "}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.page);
        set(setting::HostCodePage, row.page);
        EXPECT_EQ(received(AsciiText, {character("T", 4)}, {bytesOf(row.host)}), row.pc + "\r\n");
        EXPECT_EQ(hexOf(sent({character("T", 4)}, row.pc)), row.host);
    }
    set(setting::HostCodePage, 939);
    EXPECT_EQ(received(AsciiText, {character("T", 4)}, {bytesOf("C1 0E 0F C2")}), "AB  \r\n") << "shift codes again";
}

TEST_F(CodePage, OemComesBehindAnsiAndGoesBeforeIt) {
    // A-umlaut: C4 in page 1252, 8E in page 850.
    set(setting::ConvertToOem, 1);
    EXPECT_EQ(received(AsciiText, {character("T", 2)}, {bytesOf("63 E9")}), "\x8EZ\r\n");
    EXPECT_EQ(hexOf(sent({character("T", 2)}, "\x8EZ")), "63 E9");
    set(setting::ConvertToOem, 0);
    EXPECT_EQ(received(AsciiText, {character("T", 2)}, {bytesOf("63 E9")}), "\xC4Z\r\n");
}

TEST_F(CodePage, ConverterThatFailsEndsTheTransferUnlessOemHidesIt) {
    client();
    setFault(&emulator::Faults::failConversion, true);
    EXPECT_EQ(received(CommaSeparated, {character("T", 1)}, {hostText("A")}), "");
    EXPECT_EQ(scripted::entries().back(), "TF_END_REQUEST");
    ASSERT_EQ(user.messages.size(), 1u) << "the converter tells it, nobody else";
    EXPECT_EQ(user.messages[0].flags, 0x30u);
    EXPECT_EQ(user.messages[0].id, 0u);
    user.messages.clear();
    EXPECT_EQ(sent({character("T", 1)}, "A"), "nothing");
    EXPECT_EQ(user.messages.size(), 1u);
    set(setting::ConvertToOem, 1);
    hostFile.records = {hostText("A"), hostText("B")};
    receive();
    EXPECT_EQ(number(setting::JobRecordsReceived), 3);
}

// Host page 43: a text may become longer on its way.
TEST_F(CodePage, TextServicesOfPage43) {
    set(setting::HostCodePage, 43);
    const Strings fields = {character("A", 4), character("B", 2)};
    const std::string umlaut = "\xC3\x84";
    const std::string record = bytesOf("63 C1 63 C1 C2 C3");
    EXPECT_EQ(received(CommaSeparated, fields, {record}), umlaut + "A" + umlaut + "A,BC\r\n");
    EXPECT_EQ(received(AsciiText, fields, {record}), umlaut + "A" + umlaut + "ABC\r\n");
    EXPECT_EQ(received(BasicSequential, fields, {bytesOf("63 40 40 40 C2 63")}),
              "\"" + umlaut + "\",\"B" + umlaut + "\"\r\n");
    // However little room the fields themselves ask for.
    const std::string dif = received(Dif, Strings(5, character("A", 1)), {bytesOf("63 63 63 63 63")});
    EXPECT_NE(dif.find("\"" + umlaut + "\"\r\n1,0\r\n\"" + umlaut + "\"\r\n1,0\r\n\"" + umlaut + "\"\r\n1,0\r\n\"" +
                       umlaut + "\"\r\n1,0\r\n\"" + umlaut + "\"\r\n"),
              std::string::npos)
        << dif;
    // An odd number of bytes that is more than the field has, in a field that is padded behind such a text.
    hostFile.fields = {typed(7, "T", 4), character("U", 4)};
    sendByDescription(99);
    writePcFile(umlaut + umlaut + "A,B\r\n");
    send();
    EXPECT_EQ(hostFile.received, Strings{bytesOf("63 63 C1 40 C2 40 40 40")});
    // A session without the entries leaves texts as they are.
    emulator::Clauses absent;
    absent.absent = true;
    emulator::setClauses(session, absent);
    deleteClient();
    EXPECT_EQ(received(AsciiText, fields, {bytesOf("61 62 63 64 65 66")}), "abcdef\r\n");
    EXPECT_TRUE(user.messages.empty());
}

// --- Double-byte pages --------------------------------------------------------------------------------------------

struct Pc {
    const char* name;
    std::uint32_t ansi;
    std::uint16_t language;
    std::int32_t host;
    const char* utf8;   // two characters of the page
    const char* pc;     // their PC bytes
    const char* blank;  // the double-byte blank that counts as one
};

void PrintTo(const Pc& pc, std::ostream* out) { *out << pc.name; }

const auto nameOf = [](const testing::TestParamInfo<Pc>& info) { return std::string(info.param.name); };

class OnDoubleBytePc : public CodePage, public testing::WithParamInterface<Pc> {
protected:
    void SetUp() override {
        CodePage::SetUp();
        const emulator::PcSetup pc = {GetParam().ansi, GetParam().ansi, GetParam().language, '.', ','};
        if (!emulator::setUpPc(pc)) GTEST_SKIP() << "on another PC";
        set(setting::HostCodePage, GetParam().host);
    }
    const std::string pc_ = GetParam().pc;
};

const Pc Pcs[] = {{"Japanese930", 932, 0x0411, 930, "日本", "\x93\xFA\x96\x7B", "\x81\x40"},
                  {"Japanese939", 932, 0x0411, 939, "日本", "\x93\xFA\x96\x7B", "\x81\x40"},
                  {"Korean933", 949, 0x0412, 933, "한국", "\xC7\xD1\xB1\xB9", "\xA1\xA1"},
                  {"Simplified935", 936, 0x0804, 935, "中国", "\xD6\xD0\xB9\xFA", "\xA1\xA1"},
                  {"Traditional937", 950, 0x0404, 937, "中國", "\xA4\xA4\xB0\xEA", "\xA1\x40"}};

// The library works the user's double-byte blank out once, so each of these needs a process of its own.
class DoubleByte : public OnDoubleBytePc {
protected:
    void SetUp() override {
        OnDoubleBytePc::SetUp();
        if (IsSkipped()) return;
        text_ = hostText(GetParam().utf8, static_cast<std::uint32_t>(GetParam().host));
        ASSERT_EQ(text_.size(), 6u);
        ASSERT_EQ(text_[0], '\x0E');
        ASSERT_EQ(text_[5], '\x0F');
    }
    std::string text_;  // 0E, two characters, 0F
};

TEST_P(DoubleByte, ReceivedInEveryType) {
    const Strings fields = {typed(7, "A", 8), zoned("N", 3), typed(8, "B", 6)};
    const std::string record = text_ + "\x40\x40" + HostRecord().zoned(-12, 3).str() + text_;
    const std::string four(4, ' '), two(2, ' ');
    EXPECT_EQ(received(AsciiText, fields, {record}), pc_ + four + " -12" + pc_ + two + "\r\n");
    EXPECT_EQ(received(BasicSequential, fields, {record}), "\"" + pc_ + "\",-12,\"" + pc_ + "\"\r\n");
    EXPECT_EQ(received(CommaSeparated, fields, {record}), pc_ + ",-12," + pc_ + "\r\n");
    EXPECT_EQ(received(TabDelimited, fields, {record}), pc_ + "\t-12\t" + pc_ + "\r\n");
    EXPECT_EQ(hexOf(received(BasicRandom, fields, {record})), hexOf(pc_ + four + "01\xB2" + pc_ + two));
    EXPECT_EQ(received(NoConversion, fields, {record}), record);
    const std::string dif = received(Dif, fields, {record});
    EXPECT_NE(dif.find("1,0\r\n\"" + pc_ + "\"\r\n0,-12\r\nV\r\n1,0\r\n\"" + pc_ + "\"\r\n-1,0\r\nEOD\r\n"),
              std::string::npos);
}

TEST_P(DoubleByte, ShiftBytesGoAndUnknownPairsAreBlanks) {
    const struct {
        const char* what;
        std::string host, pc;
    } rows[] = {
        {"pairs", text_, pc_ + "  "},
        {"mixed", hostText("A") + text_ + hostText("B"), "A" + pc_ + "B  "},
        {"no row", bytesOf("0E 00 00") + text_.substr(1), "  " + pc_ + "  "},
        {"left open", text_.substr(0, 5), pc_ + " "},
        {"half a pair", text_.substr(0, 3), pc_.substr(0, 2) + " "},
        {"shifts only", bytesOf("0E 0F 0E 0F"), "    "},
        {"double-byte blank", bytesOf("0E 40 40") + text_.substr(1), GetParam().blank + pc_ + "  "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const auto length = static_cast<std::uint16_t>(row.host.size());
        EXPECT_EQ(hexOf(received(AsciiText, {character("T", length)}, {row.host})), hexOf(row.pc + "\r\n"));
    }
    // A field that ends within a pair does not touch its neighbour.
    EXPECT_EQ(received(AsciiText, {character("T", 2), character("U", 2)},
                       {bytesOf("0E") + text_.substr(1, 1) + hostText("UV")})
                  .substr(2),
              "UV\r\n");
}

TEST_P(DoubleByte, BlanksAtTheEndAreOfBothKinds) {
    const std::string record = text_.substr(0, 5) + bytesOf("40 40 40 40 0F 40 40");
    EXPECT_EQ(received(CommaSeparated, {character("T", 12)}, {record}), pc_ + "\r\n");
    EXPECT_EQ(received(BasicSequential, {character("T", 12)}, {record}), "\"" + pc_ + "\"\r\n");
    set(setting::TrimRecordBlanks, 1);
    EXPECT_EQ(received(AsciiText, {character("T", 12)}, {record}), pc_ + "\r\n");
}

TEST_P(DoubleByte, SentAsShiftedText) {
    EXPECT_EQ(hexOf(sent({character("T", 10)}, pc_ + "      ")), hexOf(text_ + hostText("    ")));
    EXPECT_EQ(hexOf(sent({character("T", 10)}, "A" + pc_ + "B    ")), hexOf(hostText("A") + text_ + hostText("B  ")));
}

TEST_P(DoubleByte, EachFailingAllocationIsReportedOrHarmless) {
    hostFile.fields = {character("T", 6)};
    hostFile.records = {text_};
    const auto transfer = [this] {
        if (!client()) return;
        receive();
        // Without the tables of the page the record is not converted; that is none of the record's allocations.
        const bool isWithoutTables = pcFileExists() && number(setting::JobRecordsReceived) == 1 &&
                                     scripted::entries().back() == "TF_END_REQUEST";
        EXPECT_TRUE(pcFileBytes() == pc_ + "\r\n" || !user.messages.empty() || isWithoutTables);
    };
    failEachAllocation(transfer, [this] { deleteClient(); });
}

INSTANTIATE_TEST_SUITE_P(Pages, DoubleByte, testing::ValuesIn(Pcs), nameOf);

// --- The PC's own functions -----------------------------------------------------------------------------------------

class DoubleBytePc : public OnDoubleBytePc {};

// `pc` is no letter, and its second byte is that of a small "a".
TEST_P(DoubleBytePc, SecondBytesAreNoLetters) {
    std::string text = pc_ + "a";
    EXPECT_EQ(platform::GetUserDefaultLangID(), GetParam().language);
    EXPECT_TRUE(platform::IsDBCSLeadByte(static_cast<std::uint8_t>(text[0])));
    EXPECT_FALSE(platform::IsDBCSLeadByte('a'));
    EXPECT_EQ(platform::CharNextA(text.c_str()), text.c_str() + 2);
    platform::CharUpperA(text.data());
    EXPECT_EQ(text, pc_ + "A");
    platform::CharToOemBuffA(text.data(), text.data(), static_cast<std::uint32_t>(text.size()));
    EXPECT_EQ(text, pc_ + "A");
    platform::OemToCharBuffA(text.data(), text.data(), static_cast<std::uint32_t>(text.size()));
    platform::CharLowerA(text.data());
    EXPECT_EQ(text, pc_ + "a");
    // A host name is cut to eight bytes of whole characters, and its ASCII letters are capitals.
    for (const auto& [name, shown] : {std::pair("a" + pc_ + "b", "A" + pc_ + "B    "), {"abcdefg" + pc_, "ABCDEFG "}}) {
        set(setting::HostSystemName, name);
        receive();
        EXPECT_EQ(scripted::calls().end()[-2].designation, "SYSTEM(" + shown + ")");
    }
}

const Pc OtherPcs[] = {{"Japanese", 932, 0x0411, 939, "", "\x81\x61", ""},
                       {"Korean", 949, 0x0412, 933, "", "\xB0\x61", ""},
                       {"SimplifiedChinese", 936, 0x0804, 935, "", "\x81\x61", ""},
                       {"TraditionalChinese", 950, 0x0404, 937, "", "\xA1\x61", ""}};

INSTANTIATE_TEST_SUITE_P(Pcs, DoubleBytePc, testing::ValuesIn(OtherPcs), nameOf);

}  // namespace

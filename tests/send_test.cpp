#include <array>

#include "support/transfer_fixture.h"

namespace {

namespace hf = hostfields;
using scripted::Answer;
using Bytes = std::string;

constexpr int PeriodSeparates = 6;  // value of the setting DecimalSeparatorMode
const std::vector<std::string> NothingSent;

struct Numbers {
    std::string field;
    std::vector<std::array<const char*, 2>> stored;  // text and bytes
    std::vector<const char*> refused;
};

class Send : public TransferFixture {
protected:
    void SetUp() override {
        TransferFixture::SetUp();
        useListSeparator(';');
        set(setting::DecimalSeparatorMode, PeriodSeparates);
        hostFile.fields = {hf::character("NAME", 3)};
        useType(CommaSeparated);
    }
    void useType(FileType type) {
        const int codes[] = {1, 3, 99, 2, 6, 98, 5};
        sendByDescription(codes[type]);
    }
    void useSource() {
        set(setting::UseDescriptionFile, 0);
        set(setting::HostFileType, 1);
        set(setting::SendFileType, AsciiText);
    }
    // Sends the file; what the host received, and the messages of this send alone.
    const std::vector<std::string>& sendFile(const std::string& bytes) {
        writePcFile(bytes);
        user.messages.clear();
        hostFile.received.clear();
        hostFile.statements.clear();
        send();
        return hostFile.received;
    }
    std::vector<std::string> sentText(const std::string& bytes) {
        std::vector<std::string> texts;
        for (const auto& record : sendFile(bytes)) {
            std::string text;
            for (const char byte : record)
                for (char candidate = 0x20; candidate < 0x7F; ++candidate)
                    if (hostText(std::string(1, candidate))[0] == byte) text += candidate;
            texts.push_back(text);
        }
        return texts;
    }
    std::string firstInserts() const {
        if (user.messages.empty()) return "no message";
        std::string joined;
        for (const auto& insert : user.messages[0].inserts) joined += insert + "|";
        return joined;
    }
    // One field's text in one record: the host bytes, or "refused".
    std::string stored(const std::string& field, const std::string& text) {
        hostFile.fields = {field};
        const auto& records = sendFile(text + "\r\n");
        if (!records.empty()) return user.messages.empty() ? hexOf(records[0]) : "message";
        return firstInserts() == "1|1|" ? "refused" : firstInserts();
    }
    void expectNumbers(const Numbers& row) {
        SCOPED_TRACE(hexOf(row.field));
        for (const auto& [text, bytes] : row.stored) EXPECT_EQ(stored(row.field, text), bytes) << text;
        for (const char* text : row.refused) EXPECT_EQ(stored(row.field, text), "refused") << text;
    }
};

TEST_F(Send, DelimitedNumbersMoveToTheirPlace) {
    const Numbers rows[] = {
        {hf::zoned("N", 3),
         {{"7", "F0 F0 F7"},
          {"   7", "F0 F0 F7"},
          {"          0000000123  ", "F1 F2 F3"},
          {"-0000000123", "F1 F2 D3"},
          {"-", "F0 F0 D0"},
          {"--23", "F0 F2 D3"},
          {"12.", "F0 F1 F2"},
          {"12.00", "F0 F1 F2"},
          {"1:?", "F1 FA FF"},
          {"x123", "F1 F2 F3"}},  // nobody looks at what stands in the sign position, but for a digit or a plus
         {"1234", "+7", "+123", "1-2", "12-", "1 2", "12.5", "x12", "--123", ",123"}},
        {hf::zoned("N", 5, 2),
         {{"-12.5", "F0 F1 F2 F5 D0"},
          {" ", "F0 F0 F0 F0 F0"},
          {"0", "F0 F0 F0 F0 F0"},
          {"100.", "F1 F0 F0 F0 F0"},
          {".5", "F0 F0 F0 F5 F0"},
          {"-.5", "F0 F0 F0 F5 D0"},
          {".-5", "F0 F0 F0 F0 D5"},
          {"12.349", "F0 F1 F2 F3 F4"},
          {"12.34x", "F0 F1 F2 F3 F4"},
          {"0000123.4500000", "F1 F2 F3 F4 F5"}},
         {"1234.5", "1,5", "1.2.3", "12.3x", "12.345-", "12.34 x"}},
        {hf::packed("N", 5, 2), {{"123.45", "12 34 5F"}, {"-999.99", "99 99 9D"}, {"123.456", "12 34 5F"}}, {"1000"}},
        {hf::packed("N", 4), {{"1234", "01 23 4F"}}, {"12345"}},
        {hf::binary("N", 4, 2),
         {{"-1,234.5", "FF FE 1D C6"},
          {"12", "00 00 04 B0"},
          {"12.349", "00 00 04 D2"},
          {"12.5 ", "00 00 00 7D"},  // the blank takes a decimal place
          {"1 2.3,4", "00 00 04 D2"},
          {"0000000000000012", "00 00 04 B0"},
          {"21474836.47", "7F FF FF FF"},
          {"-21,474,836.48", "80 00 00 00"}},
         {"21474836.48", "5-", "--5", "1.2.3", "+5", "12.3x"}},
        {hf::binary("N", 2),
         {{"-32768", "80 00"},
          {"1,234", "04 D2"},
          {"70000", "11 70"},
          {"12.5", "00 0C"},
          {"1234567", "E2 40"},
          {"-", "00 00"}},
         {"x", "1x", "123456-"}},
        {hf::binary("N", 4), {}, {"5000000000", "12345678901234", "-12345678901"}},
        {hf::hex("H", 2),
         {{"F1F2", "F1 F2"}, {"4040", "40 40"}, {"G7 7", "F7 F7"}, {"x7y8", "F7 F8"}, {"A0c1", "F0 F1"}},
         {"F1F", "F1F2F3", "F1FA", "4F40"}},
    };
    for (const Numbers& row : rows) expectNumbers(row);
    set(setting::NumericWidthMode, 1);
    EXPECT_EQ(stored(hf::packed("N", 4), "12345"), "12 34 5F");
}

TEST_F(Send, FixedNumbersTakeTheirWidth) {
    const auto zoned52 = hf::zoned("N", 5, 2);
    const Numbers rows[] = {
        {zoned52,
         {{"   1.25", "F0 F0 F1 F2 F5"},
          {"- 12.50", "F0 F1 F2 F5 D0"},
          {"123.45", "F1 F2 F3 F4 F5"},
          {"123/45", "F1 F2 F3 F4 F5"},
          {"012 50", "F0 F1 F2 F5 F0"},
          {"123456", "F1 F2 F3 F5 F6"},  // a digit in the decimal place is skipped too
          {"       ", "F0 F0 F0 F0 F0"},
          {"  10   ", "F0 F1 F0 F0 F0"},
          {"     10", "F0 F0 F0 F1 F0"},
          {"12", "F1 F2 F0 F0 F0"},
          {" ", "F0 F0 F0 F0 F0"}},
         {"-12.5", "0000.09", " 1-2.34", "1+3.45"}},
        {hf::zoned("N", 4, 2), {{"12:30", "F1 F2 F3 F0"}}, {}},
        {hf::zoned("N", 3, 3), {{".125", "F1 F2 F5"}}, {"0.125", "0.009"}},
        {hf::zoned("N", 3, 4), {}, {"-1234"}},
        {hf::zoned("N", 3), {{"7  ", "F7 F0 F0"}, {"12 ", "F1 F2 F0"}, {" - 7", "F0 F0 D7"}}, {"12.50", "1.5"}},
        {hf::packed("N", 5), {{"      ", "00 00 0F"}}, {}},
        {hf::packed("N", 4), {{"-1234", "01 23 4D"}}, {}},
        {hf::binary("N", 2), {{"    -5", "FF FB"}, {"12", "00 0C"}}, {}},
        {hf::binary("N", 2, 2), {{"  -1.25", "FF 83"}, {"12.5", "00 7D"}, {"12", "00 0C"}}, {"   1A50"}},
        {hf::binary("N", 4), {{"           ", "00 00 00 00"}}, {}},
        {hf::binary("N", 4, 2), {{"000000001234", "00 00 00 7B"}}, {}},
        {hf::hex("H", 2), {{"F140", "F1 40"}}, {"F1"}},
    };
    useType(AsciiText);
    for (const Numbers& row : rows) expectNumbers(row);
    // A second number shows where the first one ended: with and without a position for the sign.
    hostFile.fields = {zoned52, hf::zoned("M", 1)};
    EXPECT_EQ(hexOf(sendFile("   1.25 7\r\n").at(0)), "F0 F0 F1 F2 F5 F7");
    EXPECT_EQ(hexOf(sendFile("123.457\r\n").at(0)), "F1 F2 F3 F4 F5 F7");
    set(setting::NoSignPosition, 1);
    EXPECT_EQ(hexOf(sendFile("-01.257\r\n").at(0)), "F0 F0 F1 F2 D5 F7");
}

struct Line {
    int type;
    std::string line;
    std::string text;  // of the host record; empty: nothing was sent
};

TEST_F(Send, FieldsOfEachType) {
    const std::string number = hf::zoned("N", 2);
    hostFile.fields = {hf::character("A", 3), number, hf::character("B", 2)};
    const Line rows[] = {
        {BasicSequential, "\"ABCDEF\",12,\"XYZ\"", "ABC12XY"},
        {BasicSequential, "\"A\"\"B\",1,\"\"", "A\"\"01  "},
        {BasicSequential, "\"AB", "AB 00  "},
        {CommaSeparated, "ABCD;12;X", "ABC12X "},
        {CommaSeparated, "\"A;B\";1;\"\"\"\"", "A;B01\" "},
        {CommaSeparated, "\"A\" and more;1;B", "A  01B "},
        {CommaSeparated, "\"ABCDE", "ABC00  "},
        {CommaSeparated, "A", "A  00  "},
        {CommaSeparated, ";;B", "   00B "},
        {CommaSeparated, "A;x;B", ""},
        {TabDelimited, "A\"B\t 12 \tX;", "A\"B12X;"},
        {TabDelimited, "\"A\tB\"\t3", "A\tB03  "},
        {AsciiText, "ABC 12XY", "ABC12XY"},
        {AsciiText, "AB", "AB 00  "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.type) + ": " + row.line);
        useType(static_cast<FileType>(row.type));
        std::vector<std::string> expected;
        if (!row.text.empty()) expected = {hostText(row.text)};
        EXPECT_EQ(sendFile(row.line + "\r\n"), expected);
        EXPECT_EQ(user.messages.empty(), !row.text.empty());
    }
    // A comma delimits numbers of BasicSequential files, unless it is the decimal separator.
    hostFile.fields = {number, hf::zoned("M", 3, 1), hf::hex("H", 1), hf::hex("I", 1)};
    useType(BasicSequential);
    EXPECT_EQ(hexOf(sendFile("1,2.5,\"F7\",F8\r\n").at(0)), "F0 F1 F0 F2 F5 F7 F8");
    set(setting::DecimalSeparatorMode, 2);
    EXPECT_EQ(hexOf(sendFile("1;2,5;\"F7\";40\r\n").at(0)), "F0 F1 F0 F2 F5 F7 40");
    hostFile.fields = {hf::hex("H", 1), hf::character("A", 3), number};
    EXPECT_EQ(hexOf(sendFile("\"F7\",\"ABC\",12\r\n").at(0)), "F7 C1 C2 C3 F1 F2");
}

TEST_F(Send, ListingsFromThePumpAreTurnedAway) {
    HostCatalogEntry entry{};
    int asked = 0;
    user.onPump = [&] {
        ++asked;
        EXPECT_EQ(library.pcsGetFirstHostFilename(session, "QGPL/", &entry), 3u);
        EXPECT_EQ(library.pcsGetNextHostFilename(session, &entry), 3u);
    };
    std::string lines;  // more than one read, between which the dialog processes messages
    for (int i = 0; i < 1000; ++i) lines += "AAA\r\n";
    EXPECT_EQ(sendFile(lines).size(), 1000u);
    EXPECT_GT(asked, 0);
    for (const auto& statement : hostFile.statements) EXPECT_NE(statement.rfind("EXTRACT", 0), 0u) << statement;
}

TEST_F(Send, LinesEndAtAnyMarkAndNoneIsLost) {
    const struct {
        std::string file;
        std::vector<std::string> records;
    } rows[] = {
        {"AAA\r\nBBB\r\n", {"AAA", "BBB"}},
        {"AAA\rBBB\r", {"AAA", "BBB"}},
        {"AAA\nBBB\n", {"AAA", "BBB"}},
        {"AAA\r\n\r\nBBB", {"AAA", "BBB"}},
        {"AAA\x1A", {"AAA"}},
        {"AAA\r\n\x1A", {"AAA"}},
        {"AAA", {"AAA"}},
        {"", {}},
        {"\r\n", {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.file);
        EXPECT_EQ(sentText(row.file), row.records);
        EXPECT_TRUE(user.messages.empty());
    }
    useSource();
    EXPECT_EQ(sentText("AAA\r\r\nB\n\nCC\r\n\x1A"), (std::vector<std::string>{"AAA", "   ", "B  ", "CC "}));
    EXPECT_EQ(sentText("\n"), std::vector<std::string>{"   "});
}

// The second record begins at every place around the end of a read; an odd terminator ends up in the last place too.
TEST_F(Send, RecordsStraddleReadsAtEveryOffset) {
    for (const std::string end : {"\r\n", "\r", "\n"}) {
        for (std::size_t length = 4070; length <= 4096; ++length) {
            SCOPED_TRACE(std::to_string(length));
            const std::string filler(length - 2 * end.size() - 3, 'F');
            const auto sent = sentText("AAA" + end + filler + end + "BBB" + end + "CCC" + end);
            EXPECT_EQ(sent, (std::vector<std::string>{"AAA", "FFF", "BBB", "CCC"}));
        }
    }
    EXPECT_EQ(sentText(std::string(4094, 'F')), std::vector<std::string>{"FFF"});
    for (const std::size_t length : {4095u, 4096u}) {
        EXPECT_EQ(sentText(std::string(length, 'F')), NothingSent);
        EXPECT_EQ(user.messageIds(), std::vector<std::uint32_t>{4410});
    }
}

// Each bar is the end of a line.
std::string withLineEnds(std::string text, const std::string& end) {
    for (std::size_t at; (at = text.find('|')) != std::string::npos;) text.replace(at, 1, end);
    return text;
}

TEST_F(Send, DifTuplesOfEveryLineEnd) {
    hostFile.fields = {hf::character("A", 3), hf::zoned("N", 3, 1), hf::hex("H", 1)};
    useType(Dif);
    const std::string head = "TABLE|0,1|\"\"|DATA|0,0|\"\"|-1,0|BOT|1,0|\"A\"|1,0|\"N\"|1,0|\"H\"|";
    const std::string tuple = "-1,0|BOT|1,0|\"X\"\"Y\"|0,12.5|V|1,0|\"F7\"|";
    const std::string stored = "E7 7F E8 F1 F2 F5 F7";
    for (const std::string end : {"\r\n", "\r", "\n"}) {
        const auto file = [&](const std::string& text) { return withLineEnds(text, end); };
        EXPECT_EQ(sendFile(file(head + "-1,0|EOD|")), NothingSent);
        const auto& sent = sendFile(file(head + tuple + tuple + "-1,0|EOD|"));
        ASSERT_EQ(sent.size(), 2u) << firstInserts();
        for (const auto& record : sent) EXPECT_EQ(hexOf(record), stored);
        EXPECT_EQ(sendFile(file(head + tuple)).size(), 1u);
        for (std::size_t filler = 3970; filler < 4040; ++filler) {
            SCOPED_TRACE(filler);
            EXPECT_EQ(sendFile(file("TABLE|\"" + std::string(filler, 'x') + head + tuple + "-1,0|eod|")).size(), 1u);
        }
    }
    const char* const bad[] = {"0,1|V|0,12.5|V|1,0|\"F7\"|", "1,0|X|0,12.5|V|1,0|\"F7\"|",
                               "1,0|\"X\"|1,0|\"1\"|1,0|\"F7\"|", "1,0|\"X\"|0,12.5|ERROR|1,0|\"F7\"|",
                               "1,0|\"X\"|0,12.5|V|"};
    for (const char* values : bad) {
        SCOPED_TRACE(values);
        EXPECT_EQ(sendFile(withLineEnds(head + "-1,0|BOT|" + values + "-1,0|EOD|", "\r\n")), NothingSent);
        EXPECT_EQ(user.messageIds(), std::vector<std::uint32_t>{4607});
        EXPECT_GT(journalCount("provider TF_END_DATA"), 0u);
    }
}

TEST_F(Send, StartRecordSkipsLines) {
    set(setting::StartRecord, 3);
    EXPECT_EQ(sentText("AAA\r\nBBB\r\nCCC\r\nDDD\r\n"), (std::vector<std::string>{"CCC", "DDD"}));
}

TEST_F(Send, BadNumberNamesRecordAndField) {
    hostFile.fields = {hf::character("A", 1), hf::zoned("N", 2)};
    EXPECT_EQ(sendFile("A;1\r\nB;2x").size(), 1u);
    EXPECT_EQ(firstInserts(), "2|2|");
    // The next transfer works.
    EXPECT_EQ(sendFile("A;1\r\n").size(), 1u);
}

TEST_F(Send, BinaryRecords) {
    hostFile.fields = {hf::character("A", 2), hf::binary("B", 2), hf::zoned("Z", 2), hf::packed("P", 3),
                       hf::hex("H", 1)};
    useType(BasicRandom);
    const Bytes record = bytesOf("4142 D204 31B2 123B C1");
    EXPECT_EQ(hexOf(sendFile(record + record).at(1)), "C1 C2 04 D2 F1 D2 12 3D C1");
    EXPECT_EQ(sendFile(record + bytesOf("1A")).size(), 2u);
    set(setting::EofByteEndsFile, 1);
    EXPECT_EQ(sendFile(record + bytesOf("1A")).size(), 1u);
    for (const char* bad : {"4142 D204 3AB2 123B C1", "4142 D204 31B2 A23B C1", "4142 D204 31B2 1A3B C1"}) {
        EXPECT_EQ(sendFile(record + bytesOf(bad)).size(), 1u);
        EXPECT_EQ(firstInserts().substr(0, 2), "2|");
    }
    hostFile.fields = {hf::character("A", 4)};
    EXPECT_EQ(sendFile("ABCDEF").at(1), hostText("EF  "));
}

// What was received with its description goes back as it came.
TEST_F(Send, ReceivedFilesGoBackUnchanged) {
    useListSeparator(',');
    hostFile.fields = {hf::character("NAME", 9), hf::zoned("ZONED", 5, 2),  hf::packed("EVEN", 4, 1),
                       hf::packed("ODD", 5),     hf::binary("SHORT", 2, 2), hf::binary("LONG", 4),
                       hf::hex("HEX", 2)};
    const auto record = [](const char* name, std::array<std::int64_t, 5> values) {
        HostRecord made;
        made.text(name, 9).zoned(values[0], 5).packed(values[1], 4).packed(values[2], 5);
        return made.binary(values[3], 2).binary(values[4], 4).hex("F740").str();
    };
    hostFile.records = {record("A \"B\", C", {12345, -1234, 99999, -32768, -2147483648}), record("", {-5, 1, -1, 5, 0}),
                        record(" x;\t'", {0, 0, 0, 0, 70})};
    describe();
    for (int type = AsciiText; type <= Dif; ++type) {
        SCOPED_TRACE(type);
        // A quote before a comma ends a text of this type: it has no way to write one.
        if (type == BasicSequential) hostFile.records[0] = hostFile.records[2];
        set(setting::ReceiveFileType, type);
        receive();
        hostFile.received.clear();
        send();
        EXPECT_EQ(hostFile.received, hostFile.records) << pcFileBytes();
        EXPECT_TRUE(user.messages.empty());
    }
}

TEST_F(Send, DoubleByteFieldsEndOutsideDoubleByteText) {
    const emulator::PcSetup pc = {932, 932, 0x0411, '.', ';'};
    if (!emulator::setUpPc(pc)) GTEST_SKIP() << "on another PC";
    set(setting::HostCodePage, 930);
    for (const std::uint8_t type : {7, 8}) {
        hostFile.fields = {hf::typed(type, "G", 8), hf::character("A", 1)};
        for (const char* text : {"82A0", "82A082A082A0", "82A082A082A082A082A0"}) {
            const auto& sent = sendFile(bytesOf(text) + ";1\r\n");
            ASSERT_EQ(sent.size(), 1u);
            EXPECT_EQ(sent[0][0], 0x0E);
            EXPECT_EQ(sent[0][7], 0x0F) << hexOf(sent[0]);
        }
    }
    // Type, source file, PC text, and what stands in a field of 12 bytes then.
    const struct {
        FileType type;
        bool source;
        const char *text, *host;
    } rows[] = {{AsciiText, true, "82A0", "0E 44 81 0F 40 40 40 40 40 40 40 40"},
                {AsciiText, true, "82A041", "0E 44 81 0F C1 40 40 40 40 40 40 40"},
                {AsciiText, false, "82A041", "0E 44 81 0F C1 40 40 40 40 40 40 40"},
                {AsciiText, false, "82A082A082A082A082A082A0", "0E 44 81 44 81 44 81 44 81 44 81 0F"},
                {CommaSeparated, false, "2282A082A082A082A082A082A022", "0E 44 81 44 81 44 81 44 81 44 81 0F"},
                // The pairs of the prefill stay behind an even number of bytes only.
                {CommaSeparated, false, "82A04141", "0E 44 81 0F C1 C1 0E 40 40 40 40 40"},
                {CommaSeparated, false, "82A041", "0E 44 81 0F C1 40 40 40 40 40 40 40"}};
    for (const std::uint8_t type : {7, 8}) {
        hostFile.fields = {hf::typed(type, "G", 12)};
        for (const auto& row : rows) {
            useType(row.type);
            if (row.source) useSource();
            EXPECT_EQ(hexOf(sendFile(bytesOf(row.text) + "\r\n").at(0)), row.host) << row.text;
        }
    }
}

TEST_F(Send, StatementCreatesWhatIsWanted) {
    const struct {
        int useDescription, hostType, createMode, authority;
        const char *reference, *fileText, *memberText, *statement;
    } rows[] = {
        {1, 0, 0, 2, "", "Customers", "",
         "NAME into QGPL/CUST CRTFILE(YES) FILETYPE(DATA) PUBAUT(READ) FILETEXT('Customers') CRTMBR(YES) "},
        {0, 1, 0, 0, "QGPL/REF", "", "",
         "* into QGPL/CUST CRTFILE(YES) FILETYPE(SOURCE) RCDLEN(92) PUBAUT(ALL) CRTMBR(YES) "},
        {0, 2, 0, 3, "QGPL/REF", "", "It's",
         "* into QGPL/CUST CRTFILE(YES) FILETYPE(SOURCE) REFFILE(QGPL/REF) "
         "PUBAUT(READ/WRITE) CRTMBR(YES) MBRTEXT('It's') "},
        {1, 1, 0, -1, "", "", "", "NAME into QGPL/CUST CRTFILE(YES) FILETYPE(DATA) PUBAUT(NONE) CRTMBR(YES) "},
        {1, 0, 1, 0, "R", "T", "Test", "NAME into QGPL/CUST CRTFILE(NO) CRTMBR(YES) MBRTEXT('Test') "},
        {1, 0, 2, 0, "R", "T", "Test", "NAME into QGPL/CUST "},
    };
    set(setting::RecordLength, 92);
    for (const auto& row : rows) {
        set(setting::UseDescriptionFile, row.useDescription);
        set(setting::HostFileType, row.hostType);
        set(setting::CreateMode, row.createMode);
        set(setting::PublicAuthority, row.authority);
        set(setting::ReferenceFile, row.reference);
        set(setting::FileText, row.fileText);
        set(setting::MemberText, row.memberText);
        sendFile("AAA\r\n");
        ASSERT_EQ(hostFile.statements.size(), 2u);
        EXPECT_EQ(hostFile.statements[0].substr(0, 8), "OPTIONS ");
        EXPECT_EQ(hostFile.statements[1], std::string("REPLACE ") + row.statement);
    }
}

TEST_F(Send, ExistingTargetIsReplacedWhenConfirmed) {
    const struct {
        const char* text;
        int createMode, answer;
        std::size_t sent, messages;
    } rows[] = {{"IWS2036 exists", 2, 10, 1, 1},
                {"IWS2023 exists", 2, 1, 0, 1},
                {"IWS2023", 1, 1, 1, 0},
                {"iws2036", 2, 10, 0, 1},
                {"", 0, 10, 0, 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        set(setting::CreateMode, row.createMode);
        user.answer = row.answer;
        hostFile.intercept = [&](const scripted::Call& call) -> std::optional<Answer> {
            if (call.request.rfind("REPLACE", 0) != 0) return std::nullopt;
            return Answer::code(0x400, row.text);
        };
        EXPECT_EQ(sendFile("AAA\r\n").size(), row.sent);
        EXPECT_EQ(user.messages.size(), row.messages);
        library.xferCleanup(session);
    }
}

TEST_F(Send, LayoutsThatCannotBeSent) {
    for (const auto& fields : {std::vector<std::string>{}, {hf::character("A", 4096), hf::character("B", 1)}}) {
        hostFile.fields = fields;
        emulator::clearJournal();
        EXPECT_EQ(sendFile("AAA\r\n"), NothingSent);
        EXPECT_EQ(user.messages.size(), 1u);
        expectInOrder({"ProgressDialogHide(", "ShowMessageText(", "ProgressDialogShow("});
    }
    hostFile.fields = {hf::character("A", 4096)};
    EXPECT_EQ(sendFile("AAA\r\n").at(0).size(), 4096u);
    hostFile.fields = {hf::character("A", 1), hf::zoned("LONGERTHANTEN", 0)};
    EXPECT_EQ(sendFile("A;1\r\n"), NothingSent);
    EXPECT_EQ(user.messageIds(), std::vector<std::uint32_t>{4418});
    EXPECT_EQ(firstInserts(), "LONGERTHAN|");
    hostFile.fields = {hf::zoned("NOLENGTH", 0)};
    EXPECT_EQ(sendFile("1\r\n"), NothingSent);
    EXPECT_EQ(firstInserts(), "NOLENGTH|");
}

TEST_F(Send, FailuresOfTheHostEndTheSendAndTheRequest) {
    const std::uint32_t functions[] = {TF_SEND_REQUEST, TF_GET_FIELD, TF_PUT_DATA};
    for (const std::uint32_t function : functions) {
        emulator::clearJournal();
        scripted::answerNext(function, Answer::code(0x2001));
        sendFile("AAA\r\nBBB\r\n");
        EXPECT_EQ(user.messages.size(), 1u);
        EXPECT_LE(hostFile.received.size(), 1u);
        EXPECT_EQ(journalCount("provider TF_END_REQUEST"), 1u);
    }
}

// A cancel, or the end of the session, at every message pump and provider call.
TEST_F(Send, CancelAndStopAtEveryPlace) {
    std::string lines;
    for (int i = 0; i < 3000; ++i) lines += "ABC\r\n";
    for (const bool stop : {false, true}) {
        for (int place = 1, seen = place; seen >= place && place < 60; ++place) {
            SCOPED_TRACE(place);
            seen = 0;
            const auto act = [&] {
                if (++seen != place) return;
                stop ? library.xferCleanup(session) : library.pcsCancelTransfer(client());
            };
            user.onPump = act;
            user.onProgressCommand = [&](std::uint32_t) { act(); };
            sendFile(lines);
            expectIdle();
            EXPECT_TRUE(user.messages.empty());
            if (!stop && place < 5) {
                EXPECT_EQ(hostFile.received.size(), 0u);
            }
        }
        user.onPump = nullptr;
        user.onProgressCommand = nullptr;
        EXPECT_EQ(sendFile("AAA\r\n").size(), 1u);
    }
}

TEST_F(Send, EachAllocationFails) {
    hostFile.fields = {hf::character("A", 3), hf::hex("H", 1)};
    failEachAllocation([this] { send(); }, [this] { writePcFile("AAA;F1\r\nBBB;F2\r\n"); });
    EXPECT_EQ(sendFile("AAA;F1\r\n").size(), 1u);
}

}  // namespace

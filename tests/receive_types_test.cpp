#include "support/transfer_fixture.h"

namespace {

using namespace hostfields;
using scripted::Answer;
using Strings = std::vector<std::string>;

class ReceiveTypes : public TransferFixture {};

TEST_F(ReceiveTypes, DifHeaderHasCountAndNames) {
    const std::string quoted = received(Dif, {character("A\"B", 1)}, {hostText("X"), hostText("Y")});
    EXPECT_NE(quoted.find("1,0\r\n\"A\"\"B\"\r\n"), std::string::npos);
    EXPECT_NE(quoted.find("TUPLES\r\n0,3\r\n"), std::string::npos);
    // Names keep 29 characters.
    const std::string cut = received(Dif, {character("ABCDEFGHIJKLMNOPQRSTUVWXYZ1234", 1)}, {hostText("X")});
    EXPECT_NE(cut.find("\"ABCDEFGHIJKLMNOPQRSTUVWXYZ123\""), std::string::npos);
}

struct Text {
    std::string host;  // of the first of two fields; the second is "Z"
    const char *ascii, *basic, *comma, *tab, *dif;
};

TEST_F(ReceiveTypes, CharacterFields) {
    useListSeparator(';');
    const Text rows[] = {
        {hostText("ABC   "), "ABC   ", "\"ABC\"", "ABC", "ABC", "ABC"},
        {hostText("  ABC "), "  ABC ", "\"  ABC\"", "  ABC", "  ABC", "  ABC"},
        {hostText("      "), "      ", "\"\"", "", "", ""},
        {hostText("A,B   "), "A,B   ", "\"A,B\"", "\"A,B\"", "A,B", "A,B"},
        {hostText("A;B   "), "A;B   ", "\"A;B\"", "A;B", "A;B", "A;B"},
        {hostText("A\tB   "), "A\tB   ", "\"A\tB\"", "A\tB", "\"A\tB\"", "A\tB"},
        {hostText("A\"B   "), "A\"B   ", "\"A\"B\"", "\"A\"\"B\"", "\"A\"\"B\"", "A\"\"B"},
        {hostText("\"\"\"\"\"\""), "\"\"\"\"\"\"", "\"\"\"\"\"\"\"\"", "\"\"\"\"\"\"\"\"\"\"\"\"\"\"",
         "\"\"\"\"\"\"\"\"\"\"\"\"\"\"", "\"\"\"\"\"\"\"\"\"\"\"\""},
        {hostText("AB") + '\0' + hostText("CD "), "AB CD ", "\"AB\"", "AB", "AB", "AB"},
        {hostText("Äré   "), "\xC4r\xE9   ", "\"\xC4r\xE9\"", "\xC4r\xE9", "\xC4r\xE9", "\xC4r\xE9"},
    };
    for (const Text& row : rows) {
        SCOPED_TRACE(row.ascii);
        const Strings fields = {character("T", 6), character("Z", 1)};
        const Strings record = {row.host + hostText("Z")};
        ASSERT_EQ(row.host.size(), 6u);
        EXPECT_EQ(received(AsciiText, fields, record), row.ascii + std::string("Z\r\n"));
        EXPECT_EQ(received(BasicSequential, fields, record), row.basic + std::string(",\"Z\"\r\n"));
        EXPECT_EQ(received(CommaSeparated, fields, record), row.comma + std::string(";Z\r\n"));
        EXPECT_EQ(received(TabDelimited, fields, record), row.tab + std::string("\tZ\r\n"));
        EXPECT_EQ(lastTuple(received(Dif, fields, record)),
                  "1,0\r\n\"" + std::string(row.dif) + "\"\r\n1,0\r\n\"Z\"\r\n");
    }
}

TEST_F(ReceiveTypes, BinaryRecords) {
    const struct {
        std::string field;
        const char *host, *pc;
    } rows[] = {{zoned("F", 3), "F1F2D3", "31 32 B3"},   {zoned("F", 3), "F1F2B3", "31 32 B3"},
                {zoned("F", 3), "F1F2F3", "31 32 33"},   {zoned("F", 3), "F1F2C3", "31 32 33"},
                {packed("F", 5), "12345D", "12 34 5B"},  {packed("F", 5), "12345B", "12 34 5B"},
                {packed("F", 5), "12345F", "12 34 53"},  {packed("F", 5), "12345C", "12 34 53"},
                {binary("F", 2), "0001", "01 00"},       {binary("F", 4), "01020304", "04 03 02 01"},
                {hex("F", 3), "0E0F00", "0E 0F 00"},     {character("F", 3), "C1C240", "41 42 20"},
                {typed(9, "F", 3), "C1C240", "41 42 20"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.host);
        EXPECT_EQ(hexOf(received(BasicRandom, {row.field}, {bytesOf(row.host)})), row.pc);
    }
}

TEST_F(ReceiveTypes, SourceMemberKeepsItsBlanksAndStaysBare) {
    const Strings source = {HostRecord().text("A, \"B\"", 12)};
    for (const FileType type : {CommaSeparated, TabDelimited, AsciiText}) {
        EXPECT_EQ(received(type, {character("SRCDTA", 12)}, source), "A, \"B\"      \r\n");
        EXPECT_EQ(received(type, {character("SRCDTA2", 12)}, source), "A, \"B\"      \r\n");
    }
    EXPECT_EQ(received(CommaSeparated, {character("SRCDT", 12)}, source), "\"A, \"\"B\"\"\"\r\n");
    EXPECT_EQ(received(CommaSeparated, {character("SRCDTA", 11), character("X", 1)}, source), "\"A, \"\"B\"\"\",\r\n");
}

TEST_F(ReceiveTypes, TrimmingLooksAtTheRealEndOfTheRecord) {
    const struct {
        std::int32_t trim;
        std::string host;
        const char* pc;
    } rows[] = {{0, hostText("AB    "), "AB    \r\n"},
                {2, hostText("AB    "), "AB    \r\n"},
                {1, hostText("AB    "), "AB\r\n"},
                {1, hostText("      "), "\r\n"},
                {1, hostText("A") + '\0' + hostText("B   "), "A B\r\n"},
                {1, hostText("AB") + '\0' + hostText("   "), "AB \r\n"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(hexOf(row.host));
        set(setting::TrimRecordBlanks, row.trim);
        EXPECT_EQ(received(AsciiText, {character("T", 6)}, {row.host}), row.pc);
    }
}

TEST_F(ReceiveTypes, UnknownTypesAreText) {
    for (const int code : {5, 6, 7, 8, 9, 11, 12, 13, 200, 255}) {
        SCOPED_TRACE(code);
        EXPECT_EQ(
            received(CommaSeparated, {typed(static_cast<std::uint8_t>(code), "X", 16)}, {HostRecord().text("A,B", 16)}),
            "\"A,B\"\r\n");
    }
    std::string longer(300, 'x');
    EXPECT_EQ(received(CommaSeparated, {typed(9, "X", 300)}, {hostText(longer)}), longer + "\r\n");
}

// --- Lists and records that do not belong together ----------------------------------------------------------------

TEST_F(ReceiveTypes, ListAndRecordOfDifferentLengths) {
    const Strings fields = {character("A", 3), zoned("N", 3), character("B", 4)};
    const struct {
        const char* what;
        std::string record;
        const char *comma, *ascii;
        std::string random;
    } rows[] = {
        {"whole", hostText("ABC123WXYZ"), "ABC,123,WXYZ\r\n", "ABC 123WXYZ\r\n", "ABC123WXYZ"},
        {"longer", hostText("ABC123WXYZMORE"), "ABC,123,WXYZ\r\n", "ABC 123WXYZ\r\n", "ABC123WXYZ"},
        {"text cut", hostText("ABC123WX"), "ABC,123,WX\r\n", "ABC 123WX\r\n", "ABC123WX"},
        {"ends between", hostText("ABC123"), "ABC,123\r\n", "ABC 123\r\n", "ABC123"},
        {"number cut", hostText("ABC12"), "ABC\r\n", "ABC\r\n", "ABC"},
        {"first cut", hostText("AB"), "AB\r\n", "AB\r\n", "AB"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(received(CommaSeparated, fields, {row.record}), row.comma);
        EXPECT_EQ(received(AsciiText, fields, {row.record}), row.ascii);
        EXPECT_EQ(received(BasicRandom, fields, {row.record}), row.random);
        EXPECT_EQ(received(NoConversion, fields, {row.record}), row.record);
    }
    EXPECT_EQ(received(CommaSeparated, {}, {hostText("ABC")}), "\r\n");
    EXPECT_EQ(received(NoConversion, {}, {hostText("ABC")}), hostText("ABC"));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(ReceiveTypes, TextLongerThanTheSharedBufferIsWrittenWhole) {
    const std::string text(3000, 'A');
    std::string digits;
    for (int i = 0; i < 1000; ++i) digits += "5A";
    EXPECT_EQ(
        received(CommaSeparated, {character("A", 3000), hex("B", 1000)}, {hostText(text) + std::string(1000, '\x5A')}),
        text + "," + digits + "\r\n");
    // Short fields need more around them than a fixed share of their length.
    for (const FileType type : {BasicSequential, CommaSeparated, TabDelimited, Dif}) {
        SCOPED_TRACE(type);
        Strings fields;
        std::string values;
        for (int i = 0; i < 400; ++i) {
            fields.push_back(hex("H" + std::to_string(i), 1));
            const std::string between = i == 0 ? "" : type == TabDelimited ? "\t" : ",";
            values += type == Dif ? "1,0\r\n\"C1\"\r\n" : type == BasicSequential ? between + "\"C1\"" : between + "C1";
        }
        const std::string file = received(type, fields, {std::string(400, '\xC1')});
        EXPECT_EQ(type == Dif ? lastTuple(file) : file, type == Dif ? values : values + "\r\n");
    }
    // Every byte a quote.
    EXPECT_EQ(received(CommaSeparated, {character("A", 4096)}, {std::string(4096, '\x7F')}),
              std::string(8194, '"') + "\r\n");
    EXPECT_TRUE(user.messages.empty());
}

// --- Answers that are none ----------------------------------------------------------------------------------------

TEST_F(ReceiveTypes, AnswersBeyondTheBufferEndTheTransferAndKeepWhatCameBefore) {
    for (const std::uint32_t length : {4097u, 5000u, 0x10000u, 0x7FFFFFFFu, 0xFFFFFFF0u, 0xFFFFFFFFu}) {
        for (const FileType type : {CommaSeparated, BasicRandom, NoConversion}) {
            SCOPED_TRACE(std::to_string(length) + ", type " + std::to_string(type));
            user.messages.clear();
            Answer tooLong = Answer::data(std::string(4096, '\xC1'));
            tooLong.dataLength = length;
            scripted::answerNext(TF_GET_DATA, Answer::data(hostText("ALPHA")));
            scripted::answerNext(TF_GET_DATA, tooLong);
            const std::string line = type == CommaSeparated ? "ALPHA\r\n"
                                     : type == BasicRandom  ? "ALPHA"
                                                            : hostText("ALPHA");
            EXPECT_EQ(received(type, {character("A", 5)}, {}), line);
            EXPECT_EQ(user.messages.size(), 1u) << "nothing is lost without a word";
            expectIdle();
        }
    }
}

TEST_F(ReceiveTypes, NullDataAndShortDescriptionsDoNoHarm) {
    for (const std::uint32_t function : {TF_SEND_REQUEST, TF_GET_FIELD, TF_GET_DATA}) {
        for (const std::uint32_t length : {0u, 40u, 0xFFFFFFF0u, 0xFFFFFFFFu}) {
            for (const std::uint32_t code : {0u, 0x2001u, 0x3000u}) {
                SCOPED_TRACE(std::to_string(function) + ", " + std::to_string(length) + ", " + std::to_string(code));
                Answer answer = Answer::code(code);
                answer.place = scripted::Place::Null;
                answer.dataLength = length;
                scripted::answerNext(function, answer);
                received(CommaSeparated, {character("A", 5)}, {hostText("ALPHA")});
                expectIdle();
                EXPECT_EQ(received(CommaSeparated, {character("A", 5)}, {hostText("ALPHA")}), "ALPHA\r\n");
            }
        }
    }
}

// --- Memory -------------------------------------------------------------------------------------------------------

TEST_F(ReceiveTypes, EachFailingAllocationIsReportedOrHarmless) {
    describe();
    for (std::int32_t type = AsciiText; type <= Dif; ++type) {
        SCOPED_TRACE("type " + std::to_string(type));
        const std::string whole = received(static_cast<FileType>(type), {character("A", 5), hex("H", 1)},
                                           {hostText("ALPHA") + "\x01", hostText("A\"B,C") + "\x02"});
        failEachAllocation([&] {
            receive(1);
            EXPECT_TRUE(pcFileBytes() == whole || !user.messages.empty());
            library.xferCleanup(session);  // so that the provider's libraries come anew
        });
        EXPECT_EQ(pcFileBytes(), whole);
    }
}

TEST_F(ReceiveTypes, EachFailingAllocationToTheScreen) {
    client();
    set(setting::ReceiveOutput, ToScreen);
    hostFile.fields = {character("A", 5), hex("H", 1)};
    hostFile.records = {hostText("ALPHA") + "\x01", hostText("BRAVO") + "\x02"};
    failEachAllocation([this] {
        receive();
        EXPECT_TRUE(!user.messages.empty() || user.display.rows.size() == 2);
    });
}

}  // namespace

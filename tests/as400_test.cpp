#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "as400/conversation.h"
#include "as400/date_format.h"
#include "as400/decimal.h"
#include "codepages/codepages.h"
#include "support/host_record.h"
#include "support/library.h"

namespace as400 {
namespace {

std::string textOf(std::span<const std::uint8_t> bytes) { return std::string(bytes.begin(), bytes.end()); }

// A conversation with a copy of the sample host, which a test may change.
class SampleHost : public testing::Test {
protected:
    void SetUp() override {
        std::string error;
        ASSERT_TRUE(codepages::load(binFolder() + "/codepages.dat", &error)) << error;
        path = std::filesystem::temp_directory_path() /
               (std::string("z7x_as400_") + testing::UnitTest::GetInstance()->current_test_info()->name() + ".db");
        std::filesystem::copy_file(binFolder() + "/sample.db", path, std::filesystem::copy_options::overwrite_existing);
        host = connect(Dialect::Text);
    }
    void TearDown() override {
        host.reset();
        std::filesystem::remove(path);
    }
    std::unique_ptr<Conversation> connect(Dialect dialect) const {
        return std::make_unique<Conversation>(ConversationSetup{path.string(), dialect});
    }
    void plain(const std::string& sql) const { Database(path.string()).execute(sql); }

    // Return code and message of a request ("3000 HSF1010 ..."), or only the code.
    std::string send(const std::string& request) { return call(Function::SendRequest, request); }
    std::string call(Function function, const std::string& data = "") {
        buffer.fill(0);
        std::ranges::copy(data, buffer.begin());
        const Answer answer = host->perform(function, buffer, static_cast<std::uint32_t>(data.size()));
        char code[5];
        std::snprintf(code, sizeof code, "%04X", static_cast<unsigned>(answer.code));
        last = textOf(answer.data);
        return answer.code == ReturnCode::Success || last.empty() ? code : code + (" " + last);
    }
    std::vector<std::string> all(Function function) {
        std::vector<std::string> items;
        while (call(function) == "0000") items.push_back(last);
        return items;
    }
    // "NAME 3 5.2" for each field: type, length and decimals, or length alone.
    std::string fields() {
        std::string list;
        for (const std::string& d : all(Function::GetField)) {
            const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(d[at]); };
            const bool number = byte(0) == 1 || byte(0) == 3 || byte(0) == 4;
            const std::string name = d.substr(3, 30),
                              size = number ? std::to_string(byte(1)) + "." + std::to_string(byte(2))
                                            : std::to_string(byte(1) + 256 * byte(2));
            list += name.substr(0, name.find(' ')) + " " + std::to_string(byte(0)) + " " + size + ", ";
        }
        return list;
    }
    std::vector<std::string> records(const std::string& query) {
        EXPECT_EQ(send(query), "0000") << query;
        auto list = all(Function::GetData);
        EXPECT_EQ(call(Function::GetData), "1FFF") << query;
        return list;
    }
    std::string first(const std::string& query) {
        const auto list = records(query);
        return list.empty() ? "" : list[0];
    }

    std::filesystem::path path;
    std::unique_ptr<Conversation> host;
    std::array<std::uint8_t, 4096> buffer{};
    std::string last;
};

TEST(HostNumbers, BytesOfEveryForm) {
    const struct {
        const char *text, *zoned5, *packed5, *packed4, *binary2;  // "" does not fit
    } cases[] = {
        {"0", "F0 F0 F0 F0 F0", "00 00 0F", "00 00 0F", "00 00"},
        {"-0", "F0 F0 F0 F0 F0", "00 00 0F", "00 00 0F", "00 00"},
        {"1.25", "F0 F0 F1 F2 F5", "00 12 5F", "00 12 5F", "00 7D"},
        {"-99.99", "F0 F9 F9 F9 D9", "09 99 9D", "09 99 9D", "D8 F1"},
        {"-327.68", "F3 F2 F7 F6 D8", "32 76 8D", "", "80 00"},
        {"327.68", "F3 F2 F7 F6 F8", "32 76 8F", "", ""},
        {"1000", "", "", "", ""},
    };
    for (const auto& row : cases) {
        const Decimal number = *decimalFromText(row.text, 2);
        const auto check = [&](const char* expected, std::size_t size, auto write, auto read) {
            Bytes bytes(size, 0x55);
            ASSERT_EQ(write(number, bytes), *expected != 0) << row.text;
            if (*expected == 0) return;
            EXPECT_EQ(hexOf(textOf(bytes)), expected) << row.text;
            EXPECT_EQ(read(bytes), number) << row.text;
        };
        check(row.zoned5, 5, writeZoned, readZoned);
        check(
            row.packed5, 3, [](auto& n, auto& b) { return writePacked(n, 5, b); }, readPacked);
        check(
            row.packed4, 3, [](auto& n, auto& b) { return writePacked(n, 4, b); }, readPacked);
        check(row.binary2, 2, writeBinary, readBinary);
    }
    for (const char* damaged : {"40 40 40", "12 34 56", "1A 00 0F", "00 00 0"}) {
        const std::string bytes = bytesOf(damaged);
        EXPECT_FALSE(readPacked(Bytes(bytes.begin(), bytes.end()))) << damaged;
    }
    for (const char* damaged : {"F0 40", "D0 F1", "F1 31", "FA F0", "F0 FA"}) {
        const std::string bytes = bytesOf(damaged);
        EXPECT_FALSE(readZoned(Bytes(bytes.begin(), bytes.end()))) << damaged;
    }
    for (const char* text : {"", "-", ".", "1.234", "1,2", "1e3", "--1", "0x1"}) {
        EXPECT_FALSE(decimalFromText(text, 2)) << text;
    }
}

TEST(DateFormats, EveryFormatBothWays) {
    const struct {
        const char *format, *separator, *text;
    } dates[] = {
        {"DDS", "'/'", "2024-02-29"}, {"ISO", "'.'", "2024-02-29"}, {"EUR", "'-'", "29.02.2024"},
        {"USA", "NUL", "02/29/2024"}, {"JIS", "DFT", "2024-02-29"}, {"DMY", "' '", "29 02 24"},
        {"MDY", "DFT", "02/29/24"},   {"YMD", "NUL", "240229"},     {"JUL", "'.'", "24.060"},
    };
    for (const auto& row : dates) {
        const auto pattern = datePattern(*dateFormatNumber(row.format), *dateSeparatorNumber(row.separator));
        const auto day = readMoment(row.text, pattern);
        ASSERT_TRUE(day) << row.text;
        EXPECT_EQ(writeMoment(*day, StoredDate), "2024-02-29");
        EXPECT_EQ(writeMoment(*day, pattern), row.text);
    }
    const struct {
        const char *format, *separator, *stored, *text;
    } times[] = {
        {"ISO", "','", "13:07:59", "13.07.59"}, {"HMS", "','", "13:07:59", "13,07,59"},
        {"HMS", "NUL", "00:00:00", "000000"},   {"JIS", "'.'", "13:07:59", "13:07:59"},
        {"USA", "DFT", "00:05:00", "12:05 AM"}, {"USA", "DFT", "12:05:00", "12:05 PM"},
    };
    for (const auto& row : times) {
        const auto pattern = timePattern(*timeFormatNumber(row.format), *timeSeparatorNumber(row.separator));
        EXPECT_EQ(writeMoment(*readMoment(row.stored, StoredTime), pattern), row.text);
        EXPECT_EQ(writeMoment(*readMoment(row.text, pattern), StoredTime), row.stored);
    }
    EXPECT_EQ(writeMoment({1939, 12, 31}, "yy/mm/dd"), "++++++++");
    for (const char* text : {"2023-02-29", "2024-13-01", "2024-00-10", "2024/02/29", "2024-2-29", "        "}) {
        EXPECT_FALSE(readMoment(text, StoredDate)) << text;
    }
}

TEST(QueryTexts, QualifiersBecomeAliases) {
    const std::vector<FileReference> files{{"L", "CUST", ""}, {"L", "T1", ""}, {"", "my table", ""}};
    const struct {
        Qualifiers qualifiers;
        const char *text, *expected;
    } cases[] = {
        {Qualifiers::Positions, "t1.A = T2.B and cust.C", "t1.A = t2.B and t1.C"},
        {Qualifiers::FileNames, "CUST.A = T1.B and \"my table\".C", "t1.A = t2.B and t3.C"},
        {Qualifiers::Positions, "'t2.A CUST.B' = 'it''s CUST.A'", "'t2.A CUST.B' = 'it''s CUST.A'"},
        {Qualifiers::Positions, "t4.A, XCUST.A, 1.5, CUST .A", "t4.A, XCUST.A, 1.5, CUST .A"},
        {Qualifiers::Positions, "CUST# > 1 and t1.@X = '#'", "\"CUST#\" > 1 and t1.\"@X\" = '#'"},
    };
    for (const auto& row : cases) EXPECT_EQ(withAliases(row.text, files, row.qualifiers), row.expected);

    const auto query =
        splitQuery("SELECT 'FROM', (SELECT 1 FROM x), A FROM L/CUST(M1),ORD  T3, L/ORDER order  by A for fetch only");
    EXPECT_EQ(query.columns, "'FROM', (SELECT 1 FROM x), A");
    ASSERT_EQ(query.files.size(), 4u);
    EXPECT_EQ(query.files[0].member, "M1");
    EXPECT_EQ(query.files[3].file, "ORDER");
    EXPECT_EQ(query.rest.substr(0, 11), "order  by A");
    EXPECT_EQ(upperCase(query.rest).find("FETCH"), std::string::npos);
}

TEST_F(SampleHost, RecordsOfEveryKindOfField) {
    const HostRecord customer = HostRecord()
                                    .zoned(100002, 6)
                                    .text("O'Neill \"Tools\" Ltd", 25)
                                    .text("1, Harbour Road", 20)
                                    .text("IE", 2)
                                    .text("0200-1002", 10)
                                    .binary(3, 4)
                                    .packed(0, 7)
                                    .packed(-25000, 11)
                                    .zoned(0, 5)
                                    .hex("F0F0");
    ASSERT_EQ(customer.str().size(), 84u);
    EXPECT_EQ(hexOf(first("SELECT *  FROM QGPL/CUST  where NAME LIKE 'O''N%'")), hexOf(customer.str()));
    const HostRecord smallest = HostRecord()
                                    .zoned(-99999, 5)
                                    .packed(-9999, 4)
                                    .hex("9999999999999999999999999999999D")
                                    .binary(-32768, 2)
                                    .binary(-2147483648LL, 4)
                                    .hex("40404040");
    EXPECT_EQ(hexOf(first("SELECT ZON5,PAK4,PAK31,BIN2,BIN4D,HEX4 FROM NUMBERS where LABEL = 'smallest'")),
              hexOf(smallest.str()));
    // Request texts may be UTF-8 or code page 1252.
    EXPECT_EQ(records("SELECT NAME FROM CUST where NAME LIKE 'M\xFCller%'").size(), 1u);
    EXPECT_EQ(records("SELECT NAME FROM CUST where NAME LIKE 'Müller%'").size(), 1u);
    const HostRecord japan =
        HostRecord().zoned(46, 2).text("鹿児島県", 10, 939).text("鹿児島市 Kagoshima", 24, 939).packed(9187, 7);
    EXPECT_EQ(hexOf(first("SELECT * FROM JAPAN/PREF where AREA = 9187")), hexOf(japan.str()));
    EXPECT_EQ(fields(), "CODE 3 2.0, NAME 7 10, CAPITAL 8 24, AREA 4 4.0, ");
    EXPECT_EQ(hexOf(first("SELECT NAME FROM STATE where CODE = 'TH'")),
              hexOf(hostText("Thüringen               ", 273)));
    EXPECT_EQ(first("SELECT * FROM QGPL/QCSRC"),
              HostRecord().text("/* Squares and cubes, \"quoted, with commas\". */", 100).str());
    EXPECT_EQ(fields(), "SRCDTA 2 100, ");
    EXPECT_TRUE(records("SELECT * FROM QGPL/EMPTY").empty());
    EXPECT_EQ(hexOf(first("SELECT COUNT(*) FROM WORLD/LEAPSEC  where TAIUTC > 11 FOR FETCH ONLY")), "00 00 00 1A");
}

TEST_F(SampleHost, JoinsAndExpressionsInBothDialects) {
    const std::string tail = " group by t1.CODE, t1.NAME having COUNT(*) > 10 order by t1.CODE ";
    const std::string text =
        "SELECT t1.NAME, COUNT(*) N, MAX(T2.LAT)/2 FROM WORLD/COUNTRY(COUNTRY) WORLD/ZONE "
        " where t1.CODE = T2.CODE and (t1.NAME LIKE 'A%')" +
        tail;
    const auto expected = records(text);
    EXPECT_EQ(expected.size(), 2u);
    EXPECT_EQ(fields(), "NAME 2 45, N 1 4.0, EXPR03 4 8.5, ");
    host = connect(Dialect::Binary);
    std::string binary = text;
    for (const auto& [from, to] : {std::pair{"t1.", "COUNTRY."}, std::pair{"T2.", "ZONE."}}) {
        for (std::size_t at; (at = binary.find(from)) != std::string::npos;) binary.replace(at, 3, to);
    }
    EXPECT_EQ(records(binary), expected);
    // Decimals are not divided as whole numbers.
    EXPECT_EQ(hexOf(first("SELECT BAL/8 FROM CUST where CUSTNO = 100002")).substr(0, 23), "00 00 00 00 00 03 12 5D");
}

TEST_F(SampleHost, OptionsDecideOnDatesAndDamagedNumbers) {
    const std::string query = "SELECT * FROM WORLD/LEAPSEC ", stock = "SELECT * FROM TESTLIB/STOCK ";
    EXPECT_EQ(send("OPTIONS IGNDECERR(Y) TIMFMT(HMS) TIMSEP(' ') DATFMT(JUL) DATSEP(')') "),
              "3000 HSF1101 Option DATSEP(')') not recognised.");
    EXPECT_EQ(send("OPTIONS IGNDECERR(Y) TIMFMT(HMS) TIMSEP(' ') DATFMT(JUL) DATSEP('-') SRTSEQ('A/B') "), "0000");
    const auto text = records(query), damaged = records(stock);
    EXPECT_EQ(text[0], hostText("72-18223 59 59") + bytesOf("00 0B"));
    EXPECT_EQ(hexOf(damaged[1]).substr(75, 8), "40 40 40");
    host = connect(Dialect::Binary);
    // Ignore, HMS, ' ', JUL, '-': the length that comes with it ends at the zero of the time separator.
    const char block[] = "OPTIONS \1\3\0\6\3\0\3A/B";
    buffer.fill(0);
    std::copy_n(block, sizeof block, buffer.begin());
    EXPECT_EQ(host->perform(Function::SendRequest, buffer, 10).code, ReturnCode::Success);
    EXPECT_EQ(records(query), text);
    EXPECT_EQ(records(stock), damaged);
    host = connect(Dialect::Text);
    EXPECT_EQ(send(stock), "0000");
    EXPECT_EQ(call(Function::GetData), "0000");
    EXPECT_EQ(call(Function::GetData), "3100 HSF2001 Field QTY: decimal data error. Record 2.");
    EXPECT_EQ(call(Function::EndRequest), "0000");
    plain("UPDATE \"TESTLIB/STOCK(STOCK)\" SET QTY = x'00017C'");  // an unusual sign is no damage
    EXPECT_EQ(hexOf(first("SELECT QTY FROM TESTLIB/STOCK where ITEM = 10020")), "00 01 7C");
}

TEST_F(SampleHost, PlainTablesAreFilesOfLibraryUser) {
    plain(
        "CREATE TABLE \"my moons\"(name VARCHAR(12), planet, radius DECIMAL(7,1), number INT, big INT, real, seen "
        "DATE, "
        "raw BLOB, \"two words\" CHAR(3));"
        "INSERT INTO \"my moons\" VALUES('Mond', 'Erde', 1737.4, 1, 5000000000, 0.25, '0001-01-01', x'0102', 'a'),"
        "('Tïtan', 'Saturn', -2574.7, -7, 1, 12.125, '1655-03-25', x'03', NULL)");
    const auto list = records("SELECT * FROM \"my moons\" where number < 0");
    EXPECT_EQ(fields(),
              "NAME 2 12, PLANET 2 6, RADIUS 4 4.1, NUMBER 1 4.0, BIG 4 8.0, REAL 4 8.3, SEEN 11 10, RAW 0 2, "
              "TWO_WORDS 2 3, ");
    EXPECT_EQ(hexOf(list.at(0)), hexOf(HostRecord()
                                           .text("Tïtan", 12)
                                           .text("Saturn", 6)
                                           .packed(-25747, 7)
                                           .binary(-7, 4)
                                           .packed(1, 15)
                                           .packed(12125, 15)
                                           .text("1655-03-25", 10)
                                           .hex("0300")
                                           .text("", 3)
                                           .str()));
    EXPECT_EQ(send("EXTRACT TABLES USER/"), "0000");
    EXPECT_EQ(all(Function::GetData).at(0), hostText("USER/MY MOONS        Table my moons").append(40, '\x40'));
    EXPECT_EQ(send("REPLACE TWO_WORDS,RADIUS into USER/\"MY MOONS\" ").substr(0, 12), "0400 IWS2023");
    EXPECT_EQ(call(Function::PutData, HostRecord().text("b", 3).packed(15, 7)), "0000");
    EXPECT_EQ(call(Function::EndRequest), "0000");
    EXPECT_EQ(records("SELECT * FROM \"my moons\" where \"two words\" = 'b' and radius = 1.5").size(), 1u);
    // A database without any catalogue is as good, and a file that is none is refused.
    std::filesystem::remove(path);
    Database(path.string(), Database::Opening::Create).execute("CREATE TABLE t(a); INSERT INTO t VALUES(-1)");
    host = connect(Dialect::Text);
    EXPECT_EQ(hexOf(first("SELECT a FROM t")), "FF FF FF FF");
    path += ".txt";
    host = connect(Dialect::Text);
    EXPECT_EQ(send("SELECT a FROM t").substr(0, 20), "3000 HSF1091 Databas");
    std::ofstream(path) << std::string(5000, 'x');
    EXPECT_EQ(send("SELECT a FROM t").substr(0, 20), "3000 HSF1091 Databas");
}

TEST_F(SampleHost, RefusalsNameWhatIsWrong) {
    const std::pair<std::string, std::string> cases[] = {
        {"SELECT *  FROM NONE/CUST ", "3000 HSF1010 Library NONE not found."},
        {"SELECT *  FROM QGPL/NONE ", "3000 HSF1011 File NONE in library QGPL not found."},
        {"SELECT *  FROM CUST(ABC) ", "3000 HSF1012 Member ABC not found in file QGPL/CUST."},
        {"SELECT NONE FROM CUST ", "3000 HSF1020 Request refused: no such column: NONE."},
        {"SELECT CODE FROM COUNTRY,ZONE ", "3000 HSF1020 Request refused: ambiguous column name: CODE."},
        {"SELECT * FROM CUST  where NAME = \"X\"", "3000 HSF1020 Request refused: no such column: X."},
        {"SELECT * FROM CUST  where", "3000 HSF1020 Request refused: incomplete input."},
        {"SELECT * FROM CUST where 1; DELETE FROM host_file", "3000 HSF1020 Request refused: more than one statement."},
        {"SELECT * FROM CUST CUST CUST" + std::string(50 * 5, ',') +
             [] {
                 std::string s;
                 for (int i = 0; i < 50; ++i) s += " CUST";
                 return s;
             }(),
         "3000 HSF1021 Record of 4452 bytes too long to transfer."},
        {"SELECT * FROM ", "3000 HSF1003 No host file named."},
        {"SELECT * FRM CUST", "3000 HSF1005 FROM missing in the request."},
        {"DROP TABLE host_file", "3000 HSF1004 Request not recognised."},
        {"", "3000 HSF1004 Request not recognised."},
        {"EXTRACT COLUMNS", "3000 HSF1003 No host file named."},
        {"EXTRACT TABLES NONE/", "3000 HSF1010 Library NONE not found."},
        {"REPLACE A,B,CUSTNO into CUST ", "3000 HSF1040 Field A not in file QGPL/CUST."},
        {"REPLACE A into QGPL/NEW ", "3000 HSF1011 File NEW in library QGPL not found."},
        {"REPLACE * into QGPL/NEW CRTFILE(YES) FILETYPE(DATA) PUBAUT(ALL) CRTMBR(YES) ",
         "3000 HSF1035 A new data file needs a reference file or field names."},
        {"REPLACE A into QGPL/9NEW CRTFILE(YES) FILETYPE(DATA) PUBAUT(ALL) CRTMBR(YES) ",
         "3000 HSF1033 Name 9NEW not valid."},
        {"REPLACE * into QGPL/NEW CRTFILE(YES) FILETYPE(SOURCE) RCDLEN(12) PUBAUT(ALL) CRTMBR(YES) ",
         "3000 HSF1034 Record length 12 not valid for a source file."},
    };
    for (const auto& [request, answer] : cases) EXPECT_EQ(send(request), answer) << request;
    EXPECT_EQ(call(Function::GetData), "2002 HSF3002 No request is open that delivers records.");
    EXPECT_EQ(call(Function::GetField), "2002 HSF3002 No request is open that has fields.");
    EXPECT_EQ(call(Function::PutData, "x"), "2002 HSF3002 No request is open that takes records.");
    EXPECT_EQ(call(Function(9)), "2000 HSF3000 Function 9 not known.");
    EXPECT_EQ(host->perform(Function::SendRequest, buffer, 4097).code, ReturnCode::LengthInvalid);
    EXPECT_EQ(send("SELECT * FROM CUST"), "0000");
    EXPECT_EQ(host->perform(Function::GetData, std::span(buffer).first(83), 0).code, ReturnCode::BufferTooSmall);
}

TEST_F(SampleHost, EveryMemberComesBackAsItWasSent) {
    EXPECT_EQ(send("OPTIONS IGNDECERR(Y) TIMFMT(ISO) TIMSEP(':') DATFMT(ISO) DATSEP('-') "), "0000");
    Database database(path.string());
    Catalogue catalogue(database, 37);
    for (const HostLibrary& library : catalogue.libraries()) {
        for (const HostFile& file : catalogue.files(library.name)) {
            for (const HostMember& member : catalogue.members(file)) {
                const std::string from = "SELECT * FROM " + file.label() + "(" + member.name + ")";
                const auto sent = records(from);
                ASSERT_EQ(
                    send("REPLACE * into " + file.label() + "(BACK) CRTFILE(NO) CRTMBR(YES) MBRTEXT('it's (back)') "),
                    "0000");
                for (const auto& record : sent)
                    ASSERT_EQ(call(Function::PutData, record), "0000") << file.label() << last;
                ASSERT_EQ(call(Function::EndRequest), "0000");
                EXPECT_EQ(records("SELECT * FROM " + file.label() + "(BACK)"), sent) << file.label();
                plain("DROP TABLE \"" + file.label() + "(BACK)\"; DELETE FROM host_member WHERE name = 'BACK'");
            }
        }
    }
}

TEST_F(SampleHost, WhatIsKeptAndWhatIsUndone) {
    const std::string replace = "REPLACE KEY,TEXT into QGPL/EMPTY ", count = "SELECT KEY FROM QGPL/EMPTY";
    const std::string exists =
        "0400 IWS2023 Member EMPTY of file QGPL/EMPTY already exists; its records will be replaced.";
    const std::string good = HostRecord().zoned(1, 5).text("a", 30), bad = HostRecord().hex("F0F0F0F040").text("a", 30);
    const auto put = [&](int number) {
        EXPECT_EQ(send(replace), exists);
        for (int i = 0; i < number; ++i) EXPECT_EQ(call(Function::PutData, good), "0000");
    };
    put(2);
    EXPECT_EQ(fields(), "KEY 3 5.0, TEXT 2 30, ");
    EXPECT_EQ(call(Function::EndRequest), "0000");
    EXPECT_EQ(records(count).size(), 2u);
    put(0);  // declined by the user, or nothing to send
    EXPECT_EQ(call(Function::EndRequest), "0000");
    EXPECT_EQ(records(count).size(), 2u);
    put(3);  // the PC found a bad record of its own
    EXPECT_EQ(call(Function::EndData), "0000");
    EXPECT_EQ(records(count).size(), 3u);
    put(1);
    EXPECT_EQ(call(Function::PutData, bad), "3100 HSF2001 Field KEY: decimal data error. Record 2.");
    EXPECT_EQ(call(Function::PutData, good).substr(0, 4), "3100");
    EXPECT_EQ(call(Function::EndRequest), "0000");
    EXPECT_EQ(records(count).size(), 3u);
    put(1);
    EXPECT_EQ(call(Function::PutData, good + "x"), "2026 HSF2021 Record of 36 bytes, file QGPL/EMPTY takes 35.");
    EXPECT_EQ(call(Function::EndRequest), "0000");
    for (const Function broken : {Function::Reset, Function::SendRequest}) {
        put(1);
        call(broken);
        EXPECT_EQ(records(count).size(), 3u);
    }
    put(1);
    host = connect(Dialect::Text);
    EXPECT_EQ(records(count).size(), 3u);
}

TEST_F(SampleHost, FilesAreCreatedAsAsked) {
    const struct {
        std::string request, answer, fields;
    } cases[] = {
        {"REPLACE * into QGPL/QNEW(PGM1) CRTFILE(YES) FILETYPE(SOURCE) RCDLEN(72) PUBAUT(ALL) CRTMBR(YES) ", "0000",
         "SRCDTA 2 60, "},
        {"REPLACE * into QGPL/QNEW(PGM2) CRTFILE(NO) CRTMBR(YES) MBRTEXT('Don't') ", "0000", "SRCDTA 2 60, "},
        {"REPLACE * into QGPL/QNEW(PGM1) CRTFILE(NO) CRTMBR(YES) ",
         "0400 IWS2023 Member PGM1 of file QGPL/QNEW already exists; its records will be replaced.", "SRCDTA 2 60, "},
        {"REPLACE * into QGPL/QNEW(PGM1) CRTFILE(YES) FILETYPE(SOURCE) RCDLEN(92) PUBAUT(ALL) CRTMBR(YES) ",
         "0400 IWS2036 File QGPL/QNEW already exists.", "SRCDTA 2 60, "},
        {"REPLACE NAME,BAL into TESTLIB/NEW1 CRTFILE(YES) FILETYPE(DATA) REFFILE(QGPL/CUST) PUBAUT(READ) FILETEXT('A "
         "(new) file's text') CRTMBR(YES) MBRTEXT('x') ",
         "0000", "NAME 2 25, BAL 4 6.2, "},
        {"REPLACE BAL,NAME into TESTLIB/CUST CRTFILE(YES) FILETYPE(DATA) PUBAUT(NONE) CRTMBR(YES) ", "0000",
         "BAL 4 6.2, NAME 2 25, "},
        {"REPLACE A,B# into NEW2 CRTFILE(YES) FILETYPE(DATA) PUBAUT(READ/WRITE) CRTMBR(YES) ", "0000",
         "A 2 50, B# 2 50, "},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(send(row.request), row.answer) << row.request;
        EXPECT_EQ(fields(), row.fields) << row.request;
        EXPECT_EQ(call(Function::EndRequest), "0000");
    }
    EXPECT_EQ(send("EXTRACT TABLES TESTLIB/"), "0000");
    EXPECT_EQ(all(Function::GetData).at(1), hostText("TESTLIB/NEW1         A (new) file's text").append(35, '\x40'));
    // Fields that were not named have their defaults.
    EXPECT_EQ(send("REPLACE NAME,BAL into TESTLIB/NEW1 "),
              "0400 IWS2023 Member NEW1 of file TESTLIB/NEW1 already exists; its records will be replaced.");
    EXPECT_EQ(call(Function::PutData, HostRecord().text("N", 25).packed(1, 11)), "0000");
    EXPECT_EQ(call(Function::EndRequest), "0000");
    EXPECT_EQ(records("SELECT STREET, CUSTNO FROM TESTLIB/NEW1 where STREET = '  ' and CUSTNO = 0").size(), 1u);
}

TEST_F(SampleHost, ListsOfTheCatalogue) {
    plain("CREATE TABLE a_table_whose_name_takes_more_room(a CHAR(1))");
    const struct {
        const char *filter, *first;
        std::size_t count, length;
    } tables[] = {
        {"", "QGPL      General purpose library", 5, 60},
        {" W*", "WORLD     Facts about the world", 1, 60},
        {" qgpl/", "QGPL/CUST            Customers (invented)", 4, 75},
        {" QGPL/QC*", "QGPL/QCLSRC          Control language programs", 2, 75},
        {" QGPL/QCLSRC", "QGPL/QCLSRC(GREET)               Greets somebody", 2, 83},
        {" QGPL/QCLSRC(", "QGPL/QCLSRC(GREET)               Greets somebody", 2, 83},
        {" USER/A*", "USER/A_TABLE_WHOSE_NAME_TAKES_MORE_ROOM     Table a_", 1, 96},
    };
    for (const auto& row : tables) {
        ASSERT_EQ(send(std::string("EXTRACT TABLES") + row.filter), "0000") << row.filter;
        const auto list = all(Function::GetData);
        ASSERT_EQ(list.size(), row.count) << row.filter;
        EXPECT_EQ(list[0].size(), row.length) << row.filter;
        EXPECT_EQ(list[0].substr(0, std::strlen(row.first)), hostText(row.first)) << row.filter;
    }
    const std::string text = "Balance                                           ";
    EXPECT_EQ(send("EXTRACT COLUMNS QGPL/CUST"), "0000");
    EXPECT_EQ(hexOf(all(Function::GetData).at(7)),
              hexOf(hostText("BAL       PACKD") + bytesOf("00 0B 40 40 40 40") + hostText(text)));
    EXPECT_EQ(send("EXTRACT COLUMNS WORLD/ZONE,QGPL/CUST"), "0000");
    EXPECT_EQ(hexOf(all(Function::GetData).at(14)),
              hexOf(hostText("t2.BAL       PACKD ") + bytesOf("00 0B 40 40 40 40") + hostText(text)));
    EXPECT_EQ(send("EXTRACT TABLES Z*"), "0000");
    host = connect(Dialect::Binary);
    EXPECT_EQ(send("EXTRACT TABLES Z*"), "1FFF");
    EXPECT_EQ(send("EXTRACT COLUMNS QGPL/CUST"), "0000");
    EXPECT_EQ(all(Function::GetData).at(7).substr(10, 5), "PACKD");
}

}  // namespace
}  // namespace as400

#include <tuple>

#include "as400/conversation.h"
#include "as400/date_format.h"
#include "as400/decimal.h"
#include "codepages/codepages.h"
#include "support/host_record.h"
#include "support/library.h"
#include "support/own_folder.h"

namespace as400 {
namespace {

std::string textOf(std::span<const std::uint8_t> bytes) { return std::string(bytes.begin(), bytes.end()); }

// A conversation with a copy of the sample host, which a test may change.
class SampleHost : public OwnFolder {
protected:
    void SetUp() override {
        std::string error;
        ASSERT_TRUE(codepages::load(binFolder() + "/codepages.dat", &error)) << error;
        std::filesystem::copy_file(binFolder() + "/sample.db", file);
        host = connect(Dialect::Text);
    }
    std::unique_ptr<Conversation> connect(Dialect dialect) const {
        ConversationSetup setup{file, dialect};
        setup.recordsAppend = [this] { return recordsAppend; };
        setup.sendIsWhole = [this] { return sendIsWhole; };
        return std::make_unique<Conversation>(std::move(setup));
    }
    void plain(const std::string& sql) const { Database(file).execute(sql); }

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
            list += d.substr(3, d.find(' ', 3) - 3) + " " + std::to_string(byte(0)) + " ";
            list += number ? std::to_string(byte(1)) + "." + std::to_string(byte(2))
                           : std::to_string(byte(1) + 256 * byte(2));
            list += ", ";
        }
        return list;
    }
    std::vector<std::string> records(const std::string& query) {
        EXPECT_EQ(send(query), "0000") << query;
        auto list = all(Function::GetData);
        EXPECT_EQ(call(Function::GetData), "1FFF") << query;
        return list;
    }
    void expectFirst(const std::string& query, const std::string& bytes) {
        const auto list = records(query);
        EXPECT_EQ(hexOf(list.empty() ? "" : list[0]), hexOf(bytes)) << query;
    }

    std::string file = path("sample.db");
    bool recordsAppend = false, sendIsWhole = true;
    std::unique_ptr<Conversation> host;
    std::array<std::uint8_t, 4096> buffer{};
    std::string last;
};

TEST(HostNumbers, BytesOfEveryForm) {
    // Zoned with 5 digits, packed with 5 and 4, binary of 2 bytes; "" does not fit.
    const std::tuple<const char*, const char*, const char*, const char*, const char*> cases[] = {
        {"0", "F0 F0 F0 F0 F0", "00 00 0F", "00 00 0F", "00 00"},
        {"-0", "F0 F0 F0 F0 F0", "00 00 0F", "00 00 0F", "00 00"},
        {"1.25", "F0 F0 F1 F2 F5", "00 12 5F", "00 12 5F", "00 7D"},
        {"-99.99", "F0 F9 F9 F9 D9", "09 99 9D", "09 99 9D", "D8 F1"},
        {"-327.68", "F3 F2 F7 F6 D8", "32 76 8D", "", "80 00"},
        {"327.68", "F3 F2 F7 F6 F8", "32 76 8F", "", ""},
        {"1000", "", "", "", ""},
    };
    const auto packed = [](int digits) { return [digits](auto& n, auto& b) { return writePacked(n, digits, b); }; };
    for (const auto& [text, zoned5, packed5, packed4, binary2] : cases) {
        SCOPED_TRACE(text);
        const Decimal number = *decimalFromText(text, 2);
        const auto check = [&](const char* expected, std::size_t size, auto write, auto read) {
            Bytes bytes(size, 0x55);
            ASSERT_EQ(write(number, bytes), *expected != 0);
            if (*expected == 0) return;
            EXPECT_EQ(hexOf(textOf(bytes)), expected);
            EXPECT_EQ(read(bytes), number);
        };
        check(zoned5, 5, writeZoned, readZoned);
        check(packed5, 3, packed(5), readPacked);
        check(packed4, 3, packed(4), readPacked);
        check(binary2, 2, writeBinary, readBinary);
    }
    const auto raw = [](const char* digits) {
        const std::string bytes = bytesOf(digits);
        return Bytes(bytes.begin(), bytes.end());
    };
    for (const char* bad : {"40 40 40", "12 34 56", "1A 00 0F", "00 00 0"}) EXPECT_FALSE(readPacked(raw(bad))) << bad;
    for (const char* bad : {"F0 40", "D0 F1", "F1 31", "FA F0", "F0 FA"}) EXPECT_FALSE(readZoned(raw(bad))) << bad;
    for (const char* bad : {"", "-", ".", "1.234", "1,2", "1e3", "--1", "0x1"})
        EXPECT_FALSE(decimalFromText(bad, 2)) << bad;
}

TEST(HostNumbers, FloatingPointIsRoundedOnce) {
    // 2.675 lies below its decimal text and 0.085 above, while both products with 100 end in exactly one half.
    const std::tuple<double, std::uint32_t, const char*> cases[] = {
        {0.125, 2, "0.12"},
        {0.375, 2, "0.38"},
        {-2.5, 0, "-2"},
        {2.675, 2, "2.67"},
        {0.085, 2, "0.09"},
        {-0.001, 2, "0.00"},
        {12.5, 4, "12.5000"},
        {1e15, 1, "1000000000000000.0"},
        {1e22, 1, "10000000000000000000000.0"},
    };
    for (const auto& [value, decimals, text] : cases) {
        EXPECT_EQ(decimalText(decimalFromDouble(value, decimals).value(), decimals), text);
    }
    EXPECT_FALSE(decimalFromDouble(std::numeric_limits<double>::infinity(), 0));
}

TEST(DateFormats, EveryFormatBothWays) {
    const auto check = [](const auto& pattern, const auto& storedPattern, const char* stored, const char* text) {
        ASSERT_TRUE(readMoment(text, pattern)) << text;
        EXPECT_EQ(writeMoment(*readMoment(text, pattern), storedPattern), stored);
        EXPECT_EQ(writeMoment(*readMoment(stored, storedPattern), pattern), text);
    };
    const std::tuple<const char*, const char*, const char*> dates[] = {
        {"DDS", "'/'", "2024-02-29"}, {"ISO", "'.'", "2024-02-29"}, {"EUR", "'-'", "29.02.2024"},
        {"USA", "NUL", "02/29/2024"}, {"JIS", "DFT", "2024-02-29"}, {"DMY", "' '", "29 02 24"},
        {"MDY", "DFT", "02/29/24"},   {"YMD", "NUL", "240229"},     {"JUL", "'.'", "24.060"},
    };
    for (const auto& [format, separator, text] : dates)
        check(datePattern(*dateFormatNumber(format), *dateSeparatorNumber(separator)), StoredDate, "2024-02-29", text);
    const std::tuple<const char*, const char*, const char*, const char*> times[] = {
        {"ISO", "','", "13:07:59", "13.07.59"}, {"HMS", "','", "13:07:59", "13,07,59"},
        {"HMS", "NUL", "00:00:00", "000000"},   {"JIS", "'.'", "13:07:59", "13:07:59"},
        {"USA", "DFT", "00:05:00", "12:05 AM"}, {"USA", "DFT", "12:05:00", "12:05 PM"},
    };
    for (const auto& [format, separator, stored, text] : times)
        check(timePattern(*timeFormatNumber(format), *timeSeparatorNumber(separator)), StoredTime, stored, text);
    EXPECT_EQ(writeMoment({1939, 12, 31}, "yy/mm/dd"), "++++++++");
    for (const char* text : {"2023-02-29", "2024-13-01", "2024-00-10", "2024/02/29", "2024-2-29", "        "})
        EXPECT_FALSE(readMoment(text, StoredDate)) << text;
}

TEST(QueryTexts, QualifiersBecomeAliases) {
    const std::vector<FileReference> files{{"L", "CUST", ""}, {"L", "T1", ""}, {"", "my table", ""}};
    const std::tuple<Qualifiers, const char*, const char*> cases[] = {
        {Qualifiers::Positions, "t1.A = T2.B and cust.C", "t1.A = t2.B and t1.C"},
        {Qualifiers::FileNames, "CUST.A = T1.B and \"my table\".C", "t1.A = t2.B and t3.C"},
        {Qualifiers::Positions, "'t2.A CUST.B' = 'it''s CUST.A'", "'t2.A CUST.B' = 'it''s CUST.A'"},
        {Qualifiers::Positions, "t4.A, XCUST.A, 1.5, CUST .A", "t4.A, XCUST.A, 1.5, CUST .A"},
        {Qualifiers::Positions, "CUST# > 1 and t1.@X = '#'", "\"CUST#\" > 1 and t1.\"@X\" = '#'"},
    };
    for (const auto& [qualifiers, text, expected] : cases) EXPECT_EQ(withAliases(text, files, qualifiers), expected);
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
    HostRecord customer, smallest, japan;
    customer.zoned(100002, 6).text("O'Neill \"Tools\" Ltd", 25).text("1, Harbour Road", 20).text("IE", 2);
    customer.text("0200-1002", 10).binary(3, 4).packed(0, 7).packed(-25000, 11).zoned(0, 5).hex("F0F0");
    expectFirst("SELECT *  FROM QGPL/CUST  where NAME LIKE 'O''N%'", customer);
    smallest.zoned(-99999, 5).packed(-9999, 4).hex("9999999999999999999999999999999D").binary(-32768, 2);
    smallest.binary(-2147483648LL, 4).hex("40404040");
    expectFirst("SELECT ZON5,PAK4,PAK31,BIN2,BIN4D,HEX4 FROM NUMBERS where LABEL = 'smallest'", smallest);
    // Request texts may be UTF-8 or code page 1252.
    EXPECT_EQ(records("SELECT NAME FROM CUST where NAME LIKE 'M\xFCller%'").size(), 1u);
    EXPECT_EQ(records("SELECT NAME FROM CUST where NAME LIKE 'Müller%'").size(), 1u);
    japan.zoned(46, 2).text("鹿児島県", 10, 939).text("鹿児島市 Kagoshima", 24, 939).packed(9187, 7);
    expectFirst("SELECT * FROM JAPAN/PREF where AREA = 9187", japan);
    EXPECT_EQ(fields(), "CODE 3 2.0, NAME 7 10, CAPITAL 8 24, AREA 4 4.0, ");
    expectFirst("SELECT NAME FROM STATE where CODE = 'TH'", hostText("Thüringen               ", 273));
    expectFirst("SELECT * FROM QGPL/QCSRC",
                HostRecord().text("/* Squares and cubes, \"quoted, with commas\". */", 100));
    EXPECT_EQ(fields(), "SRCDTA 2 100, ");
    EXPECT_TRUE(records("SELECT * FROM QGPL/EMPTY").empty());
    expectFirst("SELECT COUNT(*) FROM WORLD/LEAPSEC  where TAIUTC > 11 FOR FETCH ONLY", bytesOf("0000001A"));
}

TEST_F(SampleHost, JoinsAndExpressions) {
    const std::string query =
        "SELECT t1.NAME, COUNT(*) N, MAX(T2.LAT)/2 FROM WORLD/COUNTRY(COUNTRY) WORLD/ZONE  where t1.CODE = T2.CODE and "
        "(t1.NAME LIKE 'A%') group by t1.CODE, t1.NAME having COUNT(*) > 10 order by t1.CODE ";
    EXPECT_EQ(records(query).size(), 2u);
    EXPECT_EQ(fields(), "NAME 2 45, N 1 4.0, EXPR03 4 8.5, ");
    // Decimals are not divided as whole numbers.
    expectFirst("SELECT BAL/8 FROM CUST where CUSTNO = 100002", bytesOf("000000000003125D"));
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
    expectFirst("SELECT QTY FROM TESTLIB/STOCK where ITEM = 10020", bytesOf("00017C"));
}

TEST_F(SampleHost, PlainTablesAreFilesOfLibraryUser) {
    plain(
        "CREATE TABLE \"my moons\"(name VARCHAR(12), planet, radius DECIMAL(7,1), number INT, big INT, real, "
        "seen DATE, raw BLOB, \"two words\" CHAR(3));"
        "INSERT INTO \"my moons\" VALUES('Mond', 'Erde', 1737.4, 1, 5000000000, 0.25, '0001-01-01', x'0102', 'a'),"
        "('Tïtan', 'Saturn', -2574.7, -7, 1, 12.125, '1655-03-25', x'03', NULL)");
    HostRecord moon;
    moon.text("Tïtan", 12).text("Saturn", 6).packed(-25747, 7).binary(-7, 4).packed(1, 15).packed(12125, 15);
    expectFirst("SELECT * FROM \"my moons\" where number < 0", moon.text("1655-03-25", 10).hex("0300").text("", 3));
    EXPECT_EQ(fields(),
              "NAME 2 12, PLANET 2 6, RADIUS 4 4.1, NUMBER 1 4.0, BIG 4 8.0, REAL 4 8.3, SEEN 11 10, RAW 0 2, "
              "TWO_WORDS 2 3, ");
    EXPECT_EQ(send("EXTRACT TABLES USER/"), "0000");
    EXPECT_EQ(all(Function::GetData).at(0), hostText("USER/MY MOONS        Table my moons").append(40, '\x40'));
    EXPECT_EQ(send("REPLACE TWO_WORDS,RADIUS into USER/\"MY MOONS\" ").substr(0, 12), "0400 IWS2023");
    EXPECT_EQ(call(Function::PutData, HostRecord().text("b", 3).packed(15, 7)), "0000");
    EXPECT_EQ(call(Function::EndRequest), "0000");
    EXPECT_EQ(records("SELECT * FROM \"my moons\" where \"two words\" = 'b' and radius = 1.5").size(), 1u);
    // A database without any catalogue is as good, and a file that is none is refused.
    file = path("plain.db");
    Database(file, Database::Opening::Create).execute("CREATE TABLE t(a); INSERT INTO t VALUES(-1)");
    host = connect(Dialect::Text);
    expectFirst("SELECT a FROM t", bytesOf("FFFFFFFF"));
    file = path("text.db");
    host = connect(Dialect::Text);
    EXPECT_EQ(send("SELECT a FROM t").substr(0, 20), "3000 HSF1091 Databas");
    writeFile(file, std::string(5000, 'x'));
    EXPECT_EQ(send("SELECT a FROM t").substr(0, 20), "3000 HSF1091 Databas");
}

TEST_F(SampleHost, RefusalsNameWhatIsWrong) {
    std::string wide = "SELECT * FROM CUST CUST CUST" + std::string(250, ',');
    for (int i = 0; i < 50; ++i) wide += " CUST";
    const std::pair<std::string, std::string> cases[] = {
        {"SELECT *  FROM NONE/CUST ", "HSF1010 Library NONE not found."},
        {"SELECT *  FROM QGPL/NONE ", "HSF1011 File NONE in library QGPL not found."},
        {"SELECT *  FROM CUST(ABC) ", "HSF1012 Member ABC not found in file QGPL/CUST."},
        {"SELECT NONE FROM CUST ", "HSF1020 Request refused: no such column: NONE."},
        {"SELECT CODE FROM COUNTRY,ZONE ", "HSF1020 Request refused: ambiguous column name: CODE."},
        {"SELECT * FROM CUST  where NAME = \"X\"", "HSF1020 Request refused: no such column: X."},
        {"SELECT * FROM CUST  where", "HSF1020 Request refused: incomplete input."},
        {"SELECT * FROM CUST where 1; DELETE FROM host_file", "HSF1020 Request refused: more than one statement."},
        {wide, "HSF1021 Record of 4452 bytes too long to transfer."},
        {"SELECT * FROM ", "HSF1003 No host file named."},
        {"SELECT * FRM CUST", "HSF1005 FROM missing in the request."},
        {"DROP TABLE host_file", "HSF1004 Request not recognised."},
        {"", "HSF1004 Request not recognised."},
        {"EXTRACT COLUMNS", "HSF1003 No host file named."},
        {"EXTRACT TABLES NONE/", "HSF1010 Library NONE not found."},
        {"REPLACE A,B,CUSTNO into CUST ", "HSF1040 Field A not in file QGPL/CUST."},
        {"REPLACE A into QGPL/NEW ", "HSF1011 File NEW in library QGPL not found."},
        {"REPLACE * into QGPL/NEW CRTFILE(YES) FILETYPE(DATA) PUBAUT(ALL) CRTMBR(YES) ",
         "HSF1035 A new data file needs a reference file or field names."},
        {"REPLACE A into QGPL/9NEW CRTFILE(YES) FILETYPE(DATA) PUBAUT(ALL) CRTMBR(YES) ",
         "HSF1033 Name 9NEW not valid."},
        {"REPLACE * into QGPL/NEW CRTFILE(YES) FILETYPE(SOURCE) RCDLEN(12) PUBAUT(ALL) CRTMBR(YES) ",
         "HSF1034 Record length 12 not valid for a source file."},
    };
    for (const auto& [request, answer] : cases) EXPECT_EQ(send(request), "3000 " + answer) << request;
    EXPECT_EQ(call(Function::GetField), "2002 HSF3002 No request is open that has fields.");
    EXPECT_EQ(call(Function::PutData, "x"), "2002 HSF3002 No request is open that takes records.");
    EXPECT_EQ(call(Function(9)), "2000 HSF3000 Function 9 not known.");
    EXPECT_EQ(host->perform(Function::SendRequest, buffer, 4097).code, ReturnCode::LengthInvalid);
    EXPECT_EQ(send("SELECT * FROM CUST"), "0000");
    EXPECT_EQ(host->perform(Function::GetData, std::span(buffer).first(83), 0).code, ReturnCode::BufferTooSmall);
}

TEST_F(SampleHost, EveryMemberComesBackAsItWasSent) {
    EXPECT_EQ(send("OPTIONS IGNDECERR(Y) TIMFMT(ISO) TIMSEP(':') DATFMT(ISO) DATSEP('-') "), "0000");
    Database database(file);
    Catalogue catalogue(database, 37);
    std::vector<std::pair<std::string, std::string>> members;  // with their files
    for (const HostLibrary& library : catalogue.libraries())
        for (const HostFile& each : catalogue.files(library.name))
            for (const HostMember& member : catalogue.members(each)) members.emplace_back(each.label(), member.name);
    EXPECT_GT(members.size(), 10u);
    for (const auto& [name, member] : members) {
        SCOPED_TRACE(name);
        const auto sent = records("SELECT * FROM " + name + "(" + member + ")");
        ASSERT_EQ(send("REPLACE * into " + name + "(BACK) CRTFILE(NO) CRTMBR(YES) MBRTEXT('it's (back)') "), "0000");
        for (const auto& record : sent) ASSERT_EQ(call(Function::PutData, record), "0000") << last;
        ASSERT_EQ(call(Function::EndRequest), "0000");
        EXPECT_EQ(records("SELECT * FROM " + name + "(BACK)"), sent);
        plain("DROP TABLE \"" + name + "(BACK)\"; DELETE FROM host_member WHERE name = 'BACK'");
    }
}

TEST_F(SampleHost, SendIsKeptWholeOrNotAtAll) {
    const std::string good = HostRecord().zoned(1, 5).text("a", 30), bad = HostRecord().hex("F0F0F0F040").text("a", 30);
    const std::string request = "REPLACE KEY,TEXT into QGPL/EMPTY ";
    const std::string exists = "IWS2023 Member EMPTY of file QGPL/EMPTY already exists; its records will be replaced.";
    const auto kept = [&] { return records("SELECT KEY FROM QGPL/EMPTY").size(); };
    const struct {
        bool append, whole;
        std::size_t records;  // that are sent
        Function end;
        std::string answer;
        std::size_t kept;
    } cases[] = {
        {false, true, 2, Function::EndRequest, "0000", 2},
        {false, true, 0, Function::EndRequest, "0000", 2},   // nothing to send
        {false, false, 0, Function::EndRequest, "0000", 2},  // declined
        {false, false, 1, Function::EndRequest, "3101 HSF2022 Not all records have come; none of them is kept.", 2},
        {false, true, 1, Function::EndData, "3101 HSF2022 Not all records have come; none of them is kept.", 2},
        {false, true, 1, Function::Reset, "0000", 2},
        {true, true, 1, Function::EndRequest, "0000", 3},
        {true, false, 1, Function::EndRequest, "3101 HSF2022 Not all records have come; none of them is kept.", 3},
        {false, true, 1, Function::SendRequest, "0000", 3},  // another request, of nothing
        {false, true, 1, Function::EndRequest, "0000", 1},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.records << " records, end " << static_cast<int>(row.end));
        recordsAppend = row.append;
        sendIsWhole = row.whole;
        EXPECT_EQ(send(request), row.append ? "0000" : "0400 " + exists);
        EXPECT_EQ(fields(), "KEY 3 5.0, TEXT 2 30, ");
        for (std::size_t i = 0; i < row.records; ++i) EXPECT_EQ(call(Function::PutData, good), "0000");
        EXPECT_EQ(call(row.end, row.end == Function::SendRequest ? "OPTIONS " : ""), row.answer);
        EXPECT_EQ(kept(), row.kept);
    }
    const std::pair<std::string, const char*> refusals[] = {
        {bad, "3100 HSF2001 Field KEY: decimal data error. Record 2."},
        {good + "x", "2026 HSF2021 Record of 36 bytes, file QGPL/EMPTY takes 35."}};
    sendIsWhole = true;
    for (const auto& [record, answer] : refusals) {
        send(request);
        EXPECT_EQ(call(Function::PutData, good), "0000");
        EXPECT_EQ(call(Function::PutData, record), answer);
        EXPECT_EQ(call(Function::PutData, good).substr(0, 4), "3100");
        EXPECT_EQ(call(Function::EndRequest).substr(0, 4), "3101");
        EXPECT_EQ(kept(), 1u);
    }
    send(request);
    call(Function::PutData, good);
    host = connect(Dialect::Text);  // a lost conversation
    EXPECT_EQ(kept(), 1u);
}

TEST_F(SampleHost, FilesAreCreatedAsAsked) {
    const std::tuple<std::string, const char*, const char*> cases[] = {
        {"* into QGPL/QNEW(PGM1) CRTFILE(YES) FILETYPE(SOURCE) RCDLEN(72) PUBAUT(ALL)", "0000", "SRCDTA 2 60, "},
        {"* into QGPL/QNEW(PGM2) CRTFILE(NO)", "0000", "SRCDTA 2 60, "},
        {"* into QGPL/QNEW(PGM1) CRTFILE(NO)",
         "3000 HSF1043 Member PGM1 of file QGPL/QNEW already exists and is not created.", ""},
        {"* into QGPL/QNEW(PGM3) CRTFILE(YES) FILETYPE(SOURCE) RCDLEN(92) PUBAUT(ALL)",
         "3000 HSF1042 File QGPL/QNEW already exists and is not created.", ""},
        {"NAME,BAL into TESTLIB/NEW1 CRTFILE(YES) FILETYPE(DATA) REFFILE(QGPL/CUST) PUBAUT(READ) FILETEXT('A (new) "
         "file's text')",
         "0000", "NAME 2 25, BAL 4 6.2, "},
        {"BAL,NAME into TESTLIB/CUST CRTFILE(YES) FILETYPE(DATA) PUBAUT(NONE)", "0000", "BAL 4 6.2, NAME 2 25, "},
        {"A,B# into NEW2 CRTFILE(YES) FILETYPE(DATA) PUBAUT(READ/WRITE)", "0000", "A 2 50, B# 2 50, "},
    };
    for (const auto& [request, answer, list] : cases) {
        EXPECT_EQ(send("REPLACE " + request + " CRTMBR(YES) MBRTEXT('Don't') "), answer) << request;
        EXPECT_EQ(fields(), list) << request;
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
    const std::tuple<std::string, std::string, std::size_t, std::size_t> tables[] = {
        {"", "QGPL      General purpose library", 5, 60},
        {" W*", "WORLD     Facts about the world", 1, 60},
        {" qgpl/", "QGPL/CUST            Customers (invented)", 4, 75},
        {" QGPL/QC*", "QGPL/QCLSRC          Control language programs", 2, 75},
        {" QGPL/QCLSRC", "QGPL/QCLSRC(GREET)               Greets somebody", 2, 83},
        {" QGPL/QCLSRC(", "QGPL/QCLSRC(GREET)               Greets somebody", 2, 83},
        {" USER/A*", "USER/A_TABLE_WHOSE_NAME_TAKES_MORE_ROOM     Table a_", 1, 96},
    };
    for (const auto& [filter, first, count, length] : tables) {
        ASSERT_EQ(send("EXTRACT TABLES" + filter), "0000") << filter;
        const auto list = all(Function::GetData);
        ASSERT_EQ(list.size(), count) << filter;
        EXPECT_EQ(list[0].size(), length) << filter;
        EXPECT_EQ(list[0].substr(0, first.size()), hostText(first)) << filter;
    }
    const std::tuple<const char*, std::size_t, const char*> columns[] = {
        {"QGPL/CUST", 7, "BAL       PACKD"}, {"WORLD/ZONE,QGPL/CUST", 14, "t2.BAL       PACKD "}};
    for (const auto& [files, at, column] : columns) {
        EXPECT_EQ(send(std::string("EXTRACT COLUMNS ") + files), "0000");
        const std::string text = HostRecord().text("Balance", 50);
        EXPECT_EQ(hexOf(all(Function::GetData).at(at)), hexOf(hostText(column) + bytesOf("000B40404040") + text));
    }
    EXPECT_EQ(send("EXTRACT TABLES Z*"), "0000");
    host = connect(Dialect::Binary);
    EXPECT_EQ(send("EXTRACT TABLES Z*"), "1FFF");
    EXPECT_EQ(send("EXTRACT COLUMNS QGPL/CUST"), "0000");
    EXPECT_EQ(all(Function::GetData).at(7).substr(10, 5), "PACKD");
}

}  // namespace
}  // namespace as400

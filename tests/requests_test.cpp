#include "support/transfer_fixture.h"

namespace {

using Strings = std::vector<std::string>;

class Requests : public TwoRecords {
protected:
    // The statements that a transfer sends.
    const Strings& sent() {
        hostFile.statements.clear();
        receive();
        return hostFile.statements;
    }
    std::string query() {
        sent();
        return hostFile.statements.empty() ? "" : hostFile.statements.back();
    }
};

constexpr const char* AllZero = "OPTIONS IGNDECERR(N) TIMFMT(DDS) TIMSEP(' ') DATFMT(DDS) DATSEP(' ') ";

emulator::Clauses clauses(const char* select, const char* where = "", const char* orderBy = "",
                          const char* groupBy = "", const char* having = "", const char* join = "") {
    return {select, where, orderBy, groupBy, having, join, false};
}

// What a statement has before and behind the list of files.
struct Query {
    const char* list;
    emulator::Clauses clauses;
    const char* count;
    const char *fields, *text;                  // with the IBM-style transfer function
    const char *as400Fields, *as400 = nullptr;  // with the AS/400 client; null: the same
};

const Query Queries[] = {
    {"QGPL/CUST", {}, "", "* ", " ", "* "},
    {"QGPL/CUST", clauses("   "), "", "* ", " ", "* "},
    {"QGPL/CUST", clauses("CUSTNO, NAME", "BAL > 100", "NAME"), "  where BAL > 100", "CUSTNO, NAME",
     "  where BAL > 100 order by NAME", "CUSTNO, NAME"},
    {"QGPL/CUST", clauses(" A ", " B = 1 ", " C ", " D ", " E > 0 "), "  where B = 1", "A",
     "  where B = 1 group by D having E > 0 order by C", "A"},
    {"QGPL/CUST", clauses("", "", "C", "", "E > 0"), "", "* ", "  having E > 0 order by C", "* "},
    {"A B", clauses("", "", "", "", "", "t1.K = t2.K  "), " where t1.K = t2.K", "* ", " where t1.K = t2.K  ", "* ",
     " where A.K = B.K  "},
    {"A B", clauses("", "", "", "", "", "   "), " where", "* ", " where    ", "* "},
    {"QGPL/CUST QGPL/ORD", clauses("t1.CUSTNO,T2.AMT", "t2.AMT > 0", "T2.AMT", "", "", "t1.CUSTNO = t2.CUSTNO"),
     " where t1.CUSTNO = t2.CUSTNO and (t2.AMT > 0)", "t1.CUSTNO,T2.AMT",
     " where t1.CUSTNO = t2.CUSTNO and (t2.AMT > 0) order by T2.AMT", "CUST.CUSTNO,ORD.AMT",
     " where CUST.CUSTNO = ORD.CUSTNO and (ORD.AMT > 0) order by ORD.AMT"},
    // Members, files without a library, small letters, and names that look like a qualifier themselves.
    {"LIB/FILE(MBR),cust", clauses("t1.A,t2.B"), "", "t1.A,t2.B", " ", "FILE.A,CUST.B"},
    {"L/PART2 L/CUST1", clauses("", "t1.A = t2.A"), "  where t1.A = t2.A", "* ", "  where t1.A = t2.A", "* ",
     "  where PART2.A = CUST1.A"},
    {"A B C D E F G H I X/TEN", clauses("t10.Z,t1.Z"), "", "t10.Z,t1.Z", " ", "TEN.Z,A.Z"},
    {"L/CUST", clauses("", "A = 't1.x'"), "  where A = 't1.x'", "* ", "  where A = 't1.x'", "* ",
     "  where A = 'CUST.x'"},
};

TEST_F(Requests, QueriesOfTheUsersClauses) {
    set(setting::RecordProgress, 1);
    for (const bool as400 : {false, true}) {
        for (const Query& row : Queries) {
            SCOPED_TRACE(std::string(row.list) + ": " + row.text + (as400 ? " (AS/400)" : ""));
            useTransport(as400 ? 30 : 2);
            set(setting::HostFileName, row.list);
            emulator::setClauses(session, row.clauses);
            const Strings& statements = sent();
            ASSERT_EQ(statements.size(), 3u);
            const std::string from = std::string(" FROM ") + row.list;
            if (as400) {
                const std::string end = " FOR FETCH ONLY";
                const std::string& count = statements[0];
                EXPECT_EQ(count.substr(count.size() - end.size()), end);
                EXPECT_EQ(statements[2], "SELECT " + (row.as400Fields + from) + (row.as400 ? row.as400 : row.text));
            } else {
                EXPECT_EQ(statements, (Strings{"SELECT COUNT(*)" + from + row.count, AllZero,
                                               "SELECT " + (row.fields + from) + row.text}));
            }
        }
    }
    useTransport(30);
    set(setting::HostFileName, "QGPL/CUST");
    emulator::setClauses(session, clauses("", "BAL > 100", "NAME"));
    EXPECT_EQ(sent()[0], "SELECT COUNT(*) FROM QGPL/CUST  where BAL > 100 FOR FETCH ONLY");
}

TEST_F(Requests, CountIsAskedForOnlyWhenItIsNeeded) {
    set(setting::RecordProgress, 2);
    EXPECT_EQ(sent().size(), 2u);
    set(setting::ReceiveFileType, Dif);
    EXPECT_EQ(sent().size(), 3u);
}

TEST_F(Requests, DesignationOfTheHostSystem) {
    const struct {
        std::int32_t transport;
        const char* name;
        std::optional<std::string> designation;
    } rows[] = {{2, "as400a", "SYSTEM(AS400A  )"},
                {2, "ABCDEFGH", "SYSTEM(ABCDEFGH)"},
                {2, "ABCDEFGHIJ", "SYSTEM(ABCDEFGH)"},
                {2, "APPN.SYS1", "SYSTEM(APPN.SYS)"},
                {2, "", {}},
                {8, "APPN.SYS1", "SYSTEM(YS1     )"},
                {8, "SYS1", "SYSTEM(SYS1    )"},
                {8, "APPN.", {}},
                {8, "APPN.S", {}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        useTransport(row.transport);
        set(setting::HostSystemName, row.name);
        const auto before = scripted::calls().size();
        receive();
        ASSERT_GT(scripted::calls().size(), before);
        for (auto i = before; i < scripted::calls().size(); ++i) {
            const auto& call = scripted::calls()[i];
            const bool designated = call.function == TF_SEND_REQUEST || call.function == TF_GET_FIELD;
            EXPECT_EQ(call.designation, designated ? row.designation : std::nullopt)
                << scripted::functionName(call.function);
        }
    }
}

// --- The options ------------------------------------------------------------------------------------------------

struct Options {
    std::int32_t decimalErrors, timeFormat, timeSeparator, dateFormat, dateSeparator;
    const char* sequence;
    const char* text;
};

const Options OptionRows[] = {
    {1, 4, 1, 8, 7, "*HEX", "IGNDECERR(Y) TIMFMT(ISO) TIMSEP(':') DATFMT(USA) DATSEP('/') SRTSEQ(*HEX) "},
    {2, 1, 2, 1, 1, "*JOB", "IGNDECERR(Y) TIMFMT(DFT) TIMSEP(',') DATFMT(DFT) DATSEP(DFT) "},
    {0, 2, 3, 2, 2, "QUSRSYS/SEQ1",
     "IGNDECERR(N) TIMFMT(EUR) TIMSEP(DFT) DATFMT(DMY) DATSEP(',') SRTSEQ('QUSRSYS/SEQ1') "},
    {-1, 3, 4, 3, 3, "*job", "IGNDECERR(Y) TIMFMT(HMS) TIMSEP(DFT) DATFMT(EUR) DATSEP('-') SRTSEQ(*job) "},
    {0, 5, 5, 4, 4, "", "IGNDECERR(N) TIMFMT(JIS) TIMSEP(NUL) DATFMT(ISO) DATSEP(DFT) "},
    {0, 6, 6, 5, 5, "", "IGNDECERR(N) TIMFMT(USA) TIMSEP('.') DATFMT(JIS) DATSEP(NUL) "},
    {0, 7, 7, 6, 6, "", "IGNDECERR(N) TIMFMT(DFT) TIMSEP(DFT) DATFMT(JUL) DATSEP('.') "},
    {0, -1, -1, 7, 8, "", "IGNDECERR(N) TIMFMT(DFT) TIMSEP(DFT) DATFMT(MDY) DATSEP(DFT) "},
    {0, 0x7FFFFFFF, 99, 9, -1, "", "IGNDECERR(N) TIMFMT(DFT) TIMSEP(DFT) DATFMT(YMD) DATSEP(DFT) "},
    {0, 0, 0, 10, 0, "*LANGIDSHR", "IGNDECERR(N) TIMFMT(DDS) TIMSEP(' ') DATFMT(DFT) DATSEP(' ') SRTSEQ(*LANGIDSHR) "},
    {0, 0, 0, -1, 0, "", "IGNDECERR(N) TIMFMT(DDS) TIMSEP(' ') DATFMT(DFT) DATSEP(' ') "},
};

TEST_F(Requests, OptionsAsText) {
    EXPECT_EQ(sent()[0], AllZero);
    for (const Options& row : OptionRows) {
        SCOPED_TRACE(row.text);
        set(setting::IgnoreDecimalErrors, row.decimalErrors);
        set(setting::TimeFormat, row.timeFormat);
        set(setting::TimeSeparator, row.timeSeparator);
        set(setting::DateFormat, row.dateFormat);
        set(setting::DateSeparator, row.dateSeparator);
        set(setting::SortSequence, row.sequence);
        EXPECT_EQ(sent()[0], std::string("OPTIONS ") + row.text);
    }
}

TEST_F(Requests, OptionsAsABlockEndAtTheFirstZeroByteOfTheBuffer) {
    useTransport(30);
    std::string buffer;
    hostFile.observe = [&](const scripted::Call& call) {
        if (call.request.rfind("OPTIONS", 0) == 0) buffer.assign(static_cast<const char*>(call.buffer), 32);
    };
    const struct {
        std::int32_t values[6];  // decimal errors, time format, its separator, date format, its separator, decimals
        const char* sequence;
        const char* block;  // from offset 8
        std::size_t length;
    } rows[] = {
        {{0, 1, 2, 3, 4, 5}, "*LANGIDSHR", "00 01 02 03 04 05 01", 8},
        {{1, 2, 3, 4, 0, 6}, "*LANGIDUNQ", "01 02 03 04 00 06 02", 12},
        {{1, 2, 3, 4, 5, 6}, "*HEX", "01 02 03 04 05 06 00", 14},
        {{1, 2, 3, 4, 5, 6}, "*JOB", "01 02 03 04 05 06 00", 14},
        {{1, 2, 3, 4, 5, 6}, "", "01 02 03 04 05 06 00", 14},
        {{1, 2, 3, 4, 5, 6}, "*LANGIDSHR", "01 02 03 04 05 06 01", 4096},
        {{1, 2, 3, 4, 5, 6}, "*job", "01 02 03 04 05 06 03 2A 6A 6F 62 00", 19},
        {{-1, 0x105, 3, 4, 5, 7}, "L/S", "FF 05 03 04 05 07 03 4C 2F 53 00", 18},
        {{0x100, 2, 3, 4, 5, 6}, "L/S", "00 02 03 04 05 06 03 4C 2F 53 00", 8},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.block);
        const std::uint32_t ids[] = {setting::IgnoreDecimalErrors, setting::TimeFormat,
                                     setting::TimeSeparator,       setting::DateFormat,
                                     setting::DateSeparator,       setting::DecimalSeparatorMode};
        for (int i = 0; i < 6; ++i) set(ids[i], row.values[i]);
        set(setting::SortSequence, row.sequence);
        const Strings statements = sent();
        ASSERT_FALSE(statements.empty());
        EXPECT_EQ(hexOf(buffer.substr(0, 8)), hexOf("OPTIONS "));
        EXPECT_EQ(hexOf(buffer.substr(8, (std::string(row.block).size() + 1) / 3)), row.block);
        EXPECT_EQ(statements[0].size(), row.length);
    }
}

// --- Room -------------------------------------------------------------------------------------------------------

// What does not fit goes with its keyword; the shorter parts behind it are there.
TEST_F(Requests, ClauseWithoutRoomLeavesNoKeyword) {
    emulator::setClauses(session, clauses("", std::string(4090, 'w').c_str(), "NAME"));
    EXPECT_EQ(query(), "SELECT *  FROM QGPL/CUST  order by NAME");
    emulator::setClauses(session, clauses("", "A = 1", "NAME", std::string(5000, 'g').c_str()));
    EXPECT_EQ(query(), "SELECT *  FROM QGPL/CUST  where A = 1 order by NAME");
    emulator::setClauses(session, clauses("", std::string(4070, 'w').c_str(), "", "", "", "T1.A = T2.A"));
    EXPECT_EQ(query(), "SELECT *  FROM QGPL/CUST where T1.A = T2.A");
}

TEST_F(Requests, StatementWithoutRoomIsRefusedWithAMessage) {
    const struct {
        emulator::Clauses clauses;
        std::int32_t transport, progress;
        std::size_t statements;
    } rows[] = {{clauses(std::string(4096, 's').c_str()), 2, 0,
                 1},  // the options only
                      // The clauses fit, but not "SELECT COUNT(*)" and " FOR FETCH ONLY" around them.
                {clauses("", std::string(4050, 'w').c_str()), 30, 1, 0}};
    for (const auto& row : rows) {
        emulator::setClauses(session, row.clauses);
        set(setting::RecordProgress, row.progress);
        useTransport(row.transport);
        user.messages.clear();
        EXPECT_EQ(sent().size(), row.statements);
        EXPECT_EQ(user.messages.size(), 1u);
        EXPECT_FALSE(pcFileExists());
    }
    emulator::setClauses(session, {});
    EXPECT_EQ(query(), "SELECT *  FROM QGPL/CUST ");
}

TEST_F(Requests, TextsOfSettingsEndAtTheirSize) {
    const struct {
        std::uint32_t id;
        std::size_t size;
        const char *before, *behind;  // in the statement
    } rows[] = {{setting::HostFileName, 1024, "REPLACE * into ", " CRTFILE(YES) "},
                {setting::FileText, 50, " FILETEXT('", "') "},
                {setting::MemberText, 50, " MBRTEXT('", "') "},
                {setting::ReferenceFile, 300, " REFFILE(", ") "},
                {setting::SortSequence, 300, " SRTSEQ('", "') "}};
    set(setting::HostFileType, 2);
    set(setting::SendFileType, 0);
    writePcFile("ALPHA\r\n");
    for (const auto& row : rows) {
        const std::string kept = std::string(row.size - 1, 'S') + "T";
        set(row.id, kept + "CUT");
        hostFile.statements.clear();
        send();
        ASSERT_EQ(hostFile.statements.size(), 2u);
        const std::string said = hostFile.statements[0] + hostFile.statements[1];
        EXPECT_NE(said.find(row.before + kept + row.behind), std::string::npos) << row.before << said;
    }
}

// Blanks at the end of a join go on to the host, but not with the count.
TEST_F(Requests, CountIsJudgedWithoutTheBlanksAtItsEnd) {
    set(setting::RecordProgress, 1);
    set(setting::HostFileName, "A B");
    std::string join = "t1.K = t2.K";
    join.resize(4067, ' ');
    emulator::setClauses(session, clauses("", "", "", "", "", join.c_str()));
    const Strings& statements = sent();
    ASSERT_EQ(statements.size(), 3u);
    EXPECT_EQ(statements[0], "SELECT COUNT(*) FROM A B where t1.K = t2.K");
    EXPECT_EQ(statements[2].size(), 4092u);
}

// An absent entry is skipped, and nothing composed.
TEST_F(Requests, SessionWithoutClausesComposesNone) {
    emulator::Clauses none;
    none.absent = true;
    emulator::setClauses(session, none);
    EXPECT_EQ(query(), "SELECT * ");
    EXPECT_TRUE(user.messages.empty());
}

}  // namespace

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "support/cli.h"

namespace {

namespace fs = std::filesystem;

std::size_t lines(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

TEST_F(Cli, WrongUsageIsStatusTwoAndLeavesStandardOutputAlone) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "which command"},
        {"recieve A/B", "did you mean receive?"},
        {"bro", "did you mean browse?"},
        {"frobnicate", "no command frobnicate\n"},
        {"receive A/B --oder-by C", "did you mean --order-by?"},
        {"receive A/B --Tpye csv", "did you mean --type?"},
        {"receive A/B --type cvs", "did you mean csv?"},
        {"receive A/B --set HostCodePge=37", "did you mean HostCodePage?"},
        {"receive A/B --set HostCodePage=a", "HostCodePage: a is no number\n"},
        {"receive A/B --host-code-page -3", "-3 is no number from 0 to"},
        {"receive A/B --encoding foo", "--encoding: foo is not one of pc, terminal\n"},
        {"receive", "HOSTFILE"},
        {"receive A/B c.csv d.csv", "d.csv"},
        {"receive A/B --type excel", "excel"},
        {"receive A/B --set NoSuchSetting=1", "NoSuchSetting"},
        {"receive A/B --set 9999=1", "9999"},
        {"receive A/B --set ReceiveFileType=wide", "csv, random"},
        {"receive A/B --set TransportType=10", "emulator, appc13"},
        {"receive A/B --set RecordProgress=2", "no, yes"},
        {"send a.csv A/B --file-text ffffffffffffffffffffffffffffffffffffffffffffffffffff", "a transfer takes 50"},
        {"settings Datum", "125 DateFormat"},
        {"receive A/B --set 120", "ID=VALUE"},
        {"receive A/B --settings nowhere.txt", "nowhere.txt"},
        {"receive A/B --ansi-code-page 1", "code page 1"},
        {"receive A/B --oem-code-page 1", "1"},
        {"receive A/B --decimal x", "a point or a comma"},
        {"receive A/B --list-separator ..", "one character"},
        {"receive A/B --where \"N = '\xE6\x97\xA5'\"", "cannot hold"},
        {"receive A/B --answer perhaps", "replace, append, yes, no"},
        {"receive A/B --journal no/such/folder/j.txt", "no/such/folder"},
        {"send a.csv", "HOSTFILE"},
        {"send a.csv A/B --create always", "always"},
        {"receive A/B c.dif --header", "csv or tab"},
        {"receive A/B --header --output screen", "csv or tab"},
        {"send c.txt A/B --header", "csv or tab"},
        {"receive A/B --encoding latin", "latin"},
        {"browse A/B --transport telegraph", "telegraph"}};
    for (const auto& [arguments, word] : cases) EXPECT_EQ(expect(2, arguments, word).output, "") << arguments;
    expect(2, "receive A/B --where \"N = '" + std::string(4000, 'x') + "'\"", "a request takes 4000");
}

TEST_F(Cli, HelpAndVersionSucceedOnStandardOutput) {
    for (const char* arguments : {"--help", "receive --help", "send --help", "browse --help", "demo --help"}) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 0) << arguments;
        EXPECT_NE(outcome.output.find("--list-separator"), std::string::npos) << arguments;
        EXPECT_EQ(outcome.errors, "") << arguments;
    }
    EXPECT_EQ(run("--version").output.substr(0, 7), "z7xfer ");
}

TEST_F(Cli, DemonstrationIsATableOfTwentyThreeRows) {
    const Outcome outcome = run("demo");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(lines(outcome.output), 2u + 23u) << outcome.output;
    EXPECT_EQ(outcome.output.find("LAST "), 0u);
    EXPECT_NE(lastLine(outcome.errors).find("complete: 23 records"), std::string::npos) << outcome.errors;
    // Pages are turned without a user whatever their size.
    EXPECT_EQ(run("demo --set DisplayRowsPerPage=1").output, outcome.output);
    EXPECT_EQ(run("demo --quiet").errors, "");
    expect(0, "receive A/B x.csv --set ConnectionType=3", "nothing was transferred");
    EXPECT_FALSE(fs::exists(path("x.csv")));
}

TEST_F(Cli, TallyCountsWhatIsInTheFile) {
    const Outcome outcome = run("receive WORLD/COUNTRY countries.csv --journal journal.txt");
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    const std::string file = read("countries.csv"), records = std::to_string(lines(file)) + " records";
    std::string bytes = std::to_string(file.size());
    if (bytes.size() > 3) bytes.insert(bytes.size() - 3, ",");
    const std::string tally = "z7xfer: complete: " + records + ", " + bytes + " bytes, countries.csv\n";
    EXPECT_EQ(outcome.errors, tally);
    EXPECT_EQ(outcome.output, "");
    const std::string journal = read("journal.txt");
    const std::size_t opened = journal.find("FileObject.openForWriting() = 1");
    ASSERT_NE(opened, std::string::npos);
    EXPECT_LT(journal.find("GetStringSetting("), opened);
    EXPECT_GT(journal.rfind("FileObject.close()"), opened);
    // The same data, and nothing but data, on standard output.
    for (const char* arguments : {"receive WORLD/COUNTRY", "receive WORLD/COUNTRY - --quiet"}) {
        EXPECT_TRUE(run(arguments).output == file) << arguments;
    }
    // A DIF file has a trailer behind its records.
    expect(0, "receive WORLD/COUNTRY countries.dif --type dif", "complete: " + records);
    // An appended file is twice as long, its tally is not.
    EXPECT_EQ(run("receive WORLD/COUNTRY countries.csv --set ExistingFileAction=2").errors, tally);
    EXPECT_EQ(read("countries.csv").size(), 2 * file.size());
}

TEST_F(Cli, EveryFamilyOfProvidersGivesTheSameFile) {
    std::string file;
    for (const std::string transport : {"2", "8", "5", "30"}) {
        const std::string options = " --set RouterKind=1 --set TransportType=" + transport;
        const std::string query = "\"QGPL/CUST WORLD/COUNTRY\" c.csv --join \"t1.CNTRY = T2.CODE\" --order-by CUSTNO";
        expect(0, "receive " + query + " --count" + options, "complete: 10 records");
        expect(3, "receive QGPL/NONE" + options, "HSF1011 File NONE in library QGPL not found.");
        EXPECT_TRUE(file.empty() || read("c.csv") == file) << transport;
        file = read("c.csv");
    }
}

// Behind the records where they take standard output, else on it.
TEST_F(Cli, ProgramsReadOneObject) {
    const struct {
        int status;  // or another failure
        const char* arguments;
        bool onErrors;
        std::vector<const char*> members;
    } cases[] = {
        {0,
         "receive QGPL/CUST c.csv --describe '*.fdf'",
         false,
         {R"({"command":"receive","status":0,"outcome":"complete","text":"complete: 10 records)", R"("records":10,)",
          R"("pcFile":"c.csv","hostFile":"QGPL/CUST","messages":[],"notes":[]})"}},
        {0,
         "receive WORLD/COUNTRY c.csv --host-code-page 273",
         false,
         {R"("notes":[{"text":"texts are converted with host code page 273, but the host names 37 for CODE, NAME",)"}},
        {0, "receive QGPL/CUST", true, {R"("records":10,)", R"(,"hostFile":"QGPL/CUST")"}},
        {0, "demo", true, {R"("records":23,)"}},
        {1,
         "receive QGPL/NONE n.csv",
         false,
         {R"("outcome":"failed",)", R"("records":0,)", R"("messages":[{"id":4416,"text":"HSF1011 File NONE)"}},
        {0, "browse WORLD/", false, {R"("entries":[{"name":")", R"(,"description":")"}},
        {0,
         "browse QGPL/CUST --fields",
         false,
         {R"({"name":"NAME","type":"CHAR","length":25,"codePage":37,"offset":6,"description":"Name"})",
          R"({"name":"BAL","type":"PACKD","length":11,"decimals":2,"offset":71,)"}},
        {0,
         "host",
         false,
         {R"({"command":"host","status":0,"outcome":"complete","text":"complete: )", R"(,"isThere":false,"sample":")"}},
        {0, "host --reset", false, {R"("outcome":"complete",)", R"(host.db","isThere":true,"sample":")"}},
        {1, "host --reset --answer no", false, {R"({"command":"host","status":130,"outcome":"cancelled",)"}},
        {0,
         "settings DateFormat",
         false,
         {R"({"settings":[{"number":125,"name":"DateFormat","kind":"choice",)", R"("word":"iso","meaning":")"}},
    };
    for (const auto& [status, arguments, onErrors, members] : cases) {
        const Outcome outcome = run(std::string(arguments) + " --json");
        EXPECT_EQ(outcome.status != 0, status != 0) << arguments;
        const std::string object = lastLine(onErrors ? outcome.errors : outcome.output);
        EXPECT_EQ(object.front(), '{') << arguments;
        EXPECT_EQ(object.back(), '}') << arguments;
        for (const char* member : members)
            EXPECT_NE(object.find(member), std::string::npos) << member << "\n" << object;
    }
}

TEST_F(Cli, EmptySourceIsToldAsZeroRecords) {
    const Outcome plain = run("receive QGPL/EMPTY empty.csv");
    EXPECT_EQ(plain.status, 0);
    EXPECT_EQ(lastLine(plain.errors), "z7xfer: complete: 0 records, 0 bytes, empty.csv");
    // With a count the library ends before it opens the file.
    const Outcome counted = expect(1, "receive QGPL/EMPTY counted.csv --count", "z7xfer: message ");
    EXPECT_EQ(lastLine(counted.errors), "z7xfer: failed: 0 records, counted.csv was not written");
    EXPECT_FALSE(fs::exists(path("counted.csv")));
}

TEST_F(Cli, FailuresCarryTheirMessageAndStatus) {
    fs::create_directory(path("nothing"));
    const struct {
        int status;
        const char *arguments, *text;
    } cases[] = {{1, "receive WORLD/COUNTRY x.csv --providers nothing", "z7xfer: message 4400: "},
                 {2, "receive WORLD/COUNTRY x.csv --decimal ,", "z7xfer: message 4433: "},
                 {2, "receive WORLD/COUNTRY x.dif --type dif --set 176=2", "z7xfer: message 4682: "},
                 {3, "receive WORLD/NOSUCH x.csv", "z7xfer: message "},
                 {4, "receive WORLD/COUNTRY no/folder/x.csv", "z7xfer: message 0: "},
                 {4, "send nowhere.csv QGPL/CUST", "z7xfer: message 0: "},
                 {130, "receive WORLD/COUNTRY x.csv --set 40= --answer 0", "HostSystemName"}};
    for (const auto& [status, arguments, text] : cases) {
        const std::string last = lastLine(expect(status, arguments, text).errors);
        EXPECT_NE(last.find("before any record"), std::string::npos) << last;
    }
}

TEST_F(Cli, SettingsFileIsBehindTheCommandLine) {
    writeFile(path("wide.set"), "# types\n\nReceiveFileType = Tab\r\npcfilename=from-file.txt\n");
    writeFile(path("bad.set"), "120=5\nReceiveFileType=wide\n");
    ASSERT_EQ(run("receive WORLD/COUNTRY tab.txt --type tab").status, 0);
    ASSERT_EQ(run("receive WORLD/COUNTRY text.txt --type text").status, 0);
    const std::string tab = read("tab.txt"), text = read("text.txt");
    ASSERT_NE(tab, text);
    const struct {
        const char *options, *file;
        const std::string& expected;
    } cases[] = {{"", "from-file.txt", tab},
                 {" --type text", "from-file.txt", text},
                 {" --type csv --set 120=0 --set PcFileName=set.txt", "set.txt", text}};
    for (const auto& row : cases) {
        EXPECT_EQ(run(std::string("receive WORLD/COUNTRY --settings wide.set") + row.options).status, 0);
        EXPECT_TRUE(read(row.file) == row.expected) << row.options;
    }
    expect(2, "receive WORLD/COUNTRY x.csv --settings bad.set",
           "bad.set:2: ReceiveFileType: wide is not one of text, basic");
}

TEST_F(Cli, BrowseListsOneEntryALine) {
    const Outcome members = run("browse WORLD/");
    EXPECT_EQ(members.status, 0) << members.errors;
    EXPECT_NE(members.output.find("COUNTRY"), std::string::npos) << members.output;
    EXPECT_NE(members.errors.find("complete: " + std::to_string(lines(members.output)) + " "), std::string::npos);
    const Outcome fields = run("browse --fields --set ConnectionType=3");
    EXPECT_EQ(lines(fields.output), 6u) << fields.output;
    EXPECT_EQ(lines(run("browse 'A/B A/C' --fields --set ConnectionType=3").output), 12u);
}

}  // namespace

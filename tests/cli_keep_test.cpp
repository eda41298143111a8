#include <filesystem>
#include <string>

#include "support/cli.h"

// Nothing is overwritten by accident: what PC files and members are after each way to fail.

namespace {

namespace fs = std::filesystem;

class CliKeep : public Cli {
protected:
    CliKeep() {
        writeFile(path("c.csv"), "old");
        writeFile(path("c.fdf"), "old description");
        writeFile(path("c.dif"), "old table");
        fs::copy_file(fs::path(binFolder()) / "sample.db", path("my.db"));
    }

    // What the host has in a member, as text; empty when there is no such member.
    std::string member(const std::string& name, const std::string& host = "--host-data my.db") const {
        const Outcome outcome = run("receive " + name + " - --quiet " + host);
        return outcome.status == 0 ? outcome.output : std::string();
    }
};

TEST_F(CliKeep, ReceiveThatFailsBeforeItsFirstRecordLeavesFilesAsTheyWere) {
    fs::create_directory(path("nothing"));
    const char* const cases[] = {
        "WORLD/NOSUCH c.csv --describe *.fdf",  // the host refuses
        "\"QGPL/NUMBERS\" c.csv --describe *.fdf --where \"NOSUCH = 1\"",
        "WORLD/COUNTRY c.csv --describe *.fdf --providers nothing",  // no provider
        "WORLD/COUNTRY c.csv --decimal ,",                           // settings that do not fit
        "WORLD/COUNTRY c.dif --type dif --set ExistingFileAction=2",
        "QGPL/EMPTY c.dif --type dif --describe *.fdf",  // counted, and nothing there
        "QGPL/EMPTY c.csv --describe *.fdf --count",
        "WORLD/COUNTRY c.csv --describe *.fdf --set HostCodePage=99999",  // the first record is not converted
        "WORLD/COUNTRY c.csv --describe *.fdf --no-clobber",
    };
    for (const char* arguments : cases) {
        const Outcome outcome = run(std::string("receive ") + arguments);
        EXPECT_NE(outcome.status, 0) << arguments;
        EXPECT_NE(lastLine(outcome.errors).find("c."), std::string::npos) << outcome.errors;
        EXPECT_EQ(read("c.csv") + read("c.fdf") + read("c.dif"), "oldold descriptionold table") << arguments;
    }
    // Nor is anything made.
    run("receive WORLD/NOSUCH new.csv --describe *.fdf");
    run("receive WORLD/COUNTRY new.csv --describe *.fdf --set HostCodePage=99999");
    EXPECT_FALSE(fs::exists(path("new.csv")) || fs::exists(path("new.fdf")));
    // What ends well makes a file, of no records too.
    EXPECT_EQ(run("receive QGPL/EMPTY c.csv").status, 0);
    EXPECT_EQ(read("c.csv"), "");
}

TEST_F(CliKeep, ExistingPcFileIsReplacedInItsPlaceAppendedToOrLeft) {
    const std::string all = run("receive WORLD/COUNTRY").output;
    ASSERT_FALSE(all.empty());
    const struct {
        const char* options;
        std::string left;
    } cases[] = {{"", all}, {"--force", all}, {"--append", "old" + all}, {"--no-clobber", "old"}};
    for (const auto& row : cases) {
        writeFile(path("c.csv"), "old");
        const Outcome outcome = run(std::string("receive WORLD/COUNTRY c.csv ") + row.options);
        EXPECT_EQ(outcome.status == 0, row.left != "old") << outcome.errors;
        EXPECT_TRUE(read("c.csv") == row.left) << row.options;
    }
    // A description beside it goes the same way; one that is left keeps a new PC file from being written beside it.
    const struct {
        const char* options;
        bool isThere;
        int status;
        const char *description, *text;
    } descriptions[] = {{"--no-clobber", true, 130, "old", "c.csv exists and is as it was"},
                        {"--no-clobber", false, 130, "old", "c.fdf exists and is as it was"},
                        {"--no-clobber --where \"CODE = 'none'\"", false, 130, "old", "c.fdf exists and is as it was"},
                        {"--force", true, 0, "PCF", "complete"},
                        {"--append", true, 0, "PCF", "complete"}};
    for (const auto& row : descriptions) {
        row.isThere ? writeFile(path("c.csv"), "old") : void(fs::remove(path("c.csv")));
        writeFile(path("c.fdf"), "old");
        expect(row.status, std::string("receive WORLD/COUNTRY c.csv --describe *.fdf ") + row.options, row.text);
        EXPECT_EQ(fs::exists(path("c.csv")), row.isThere) << row.options;
        EXPECT_EQ(read("c.fdf").substr(0, 3), row.description) << row.options;
    }
    for (const char* both : {"--append --force", "--append --no-clobber", "--force --no-clobber"})
        EXPECT_EQ(run(std::string("receive WORLD/COUNTRY c.csv ") + both).status, 2) << both;
    // A longer file is cut, and stays the file that others know by another name.
    writeFile(path("c.csv"), std::string(100000, 'x'));
    fs::create_hard_link(path("c.csv"), path("link.csv"));
    EXPECT_EQ(run("receive WORLD/COUNTRY c.csv --describe *.fdf").status, 0);
    EXPECT_TRUE(read("link.csv") == all);
    EXPECT_EQ(read("c.fdf").substr(0, 5), "PCFDF");
}

TEST_F(CliKeep, SendIsKeptWholeOrNotAtAll) {
    ASSERT_EQ(run("receive QGPL/CUST c.csv --describe *.fdf").status, 0);
    const std::string good = read("c.csv"), first = good.substr(0, good.find('\n') + 1);
    std::string bad = good;
    bad.insert(bad.find("100003") + 1, "x");
    writeFile(path("bad.csv"), bad);
    writeFile(path("long.csv"), good + std::string(5000, 'x'));
    writeFile(path("one.csv"), first);
    const struct {
        const char* arguments;  // of the send
        int status;
        const char* text;  // that is shown
        const char* member;
        std::string left;
    } cases[] = {
        {"c.csv QGPL/CUST --create file", 3, "HSF1042 File QGPL/CUST already exists", "QGPL/CUST", good},
        {"c.csv QGPL/CUST --create member", 3, "HSF1043 Member CUST of file QGPL/CUST already exists", "QGPL/CUST",
         good},
        {"bad.csv \"QGPL/CUST(NEW)\" --create member", 5, "failed after 2 records, ", "QGPL/CUST(NEW)", ""},
        {"bad.csv QGPL/CUST --answer replace", 5, "; the host kept none of them", "QGPL/CUST", good},
        {"long.csv QGPL/CUST --answer replace", 5, "; the host kept none of them", "QGPL/CUST", good},
        {"one.csv QGPL/CUST --answer no", 130, "not confirmed", "QGPL/CUST", good},
        {"bad.csv QGPL/CUST --create append", 5, "; the host kept none of them", "QGPL/CUST", good},
        {"c.csv QGPL/CUST --create append --providers .", 2, "append", "QGPL/CUST", good},
        {"nowhere.csv QGPL/CUST --answer replace", 4, "nowhere.csv", "QGPL/CUST", good},
        {"one.csv QGPL/CUST --create append", 0, "complete: 1 record,", "QGPL/CUST", good + first},
        {"one.csv QGPL/CUST --answer replace", 0, "complete: 1 record,", "QGPL/CUST", first},
        {"c.csv \"QGPL/CUST(NEW)\" --create member", 0, "complete: 10 records", "QGPL/CUST(NEW)", good},
        {"c.csv QGPL/NOSUCH --create append", 3, "HSF1011 File NOSUCH in library QGPL not found", "QGPL/NOSUCH", ""},
    };
    for (const auto& row : cases) {
        expect(row.status, std::string("send ") + row.arguments + " --description c.fdf --no-check --host-data my.db",
               row.text);
        EXPECT_EQ(member(row.member), row.left) << row.arguments;
    }
}

TEST_F(CliKeep, SendsGoToAHostOfTheUsersOwn) {
    const fs::path own = fs::path(path("data/host.db")).make_preferred(), sample = fs::path(binFolder()) / "sample.db";
    const std::string before = fileBytes(sample);
    const std::string customers = member("QGPL/CUST", "");
    const Outcome notYet = run("host");
    EXPECT_EQ(fs::path(notYet.output.substr(0, notYet.output.find_first_of("\r\n"))), own);
    EXPECT_FALSE(fs::exists(own)) << "made by a receive";
    ASSERT_EQ(run("receive QGPL/CUST c.csv --describe *.fdf").status, 0);
    expect(0, "send c.csv \"QGPL/CUST(MINE)\" --create member --description c.fdf", "complete: 10 records");
    EXPECT_EQ(member("QGPL/CUST(MINE)", ""), customers);
    EXPECT_NE(run("browse QGPL/CUST").output.find("MINE"), std::string::npos);
    EXPECT_TRUE(fileBytes(sample) == before);
    EXPECT_NE(run("host").errors, notYet.errors);
    // Made anew only when somebody says so.
    expect(130, "host --reset", own.string());
    EXPECT_EQ(member("QGPL/CUST(MINE)", ""), customers);
    expect(0, "host --reset --answer yes", "");
    EXPECT_EQ(member("QGPL/CUST(MINE)", ""), "");
    EXPECT_EQ(std::distance(fs::directory_iterator(own.parent_path()), {}), 1);
    // A folder that cannot be: what is read is the sample, what is sent has no place.
    environment_["Z7X_DATA_FOLDER"] = path("c.csv") + "/x";
    EXPECT_EQ(member("QGPL/CUST", ""), customers);
    expect(1, "send c.csv \"QGPL/CUST(MINE)\" --create member --description c.fdf", "c.csv/x");
    for (const char* name : {"Z7X_DATA_FOLDER", "XDG_DATA_HOME", "HOME", "LOCALAPPDATA", "APPDATA"})
        environment_[name] = std::nullopt;
    EXPECT_EQ(member("QGPL/CUST", ""), customers);
    expect(1, "send c.csv QGPL/CUST --description c.fdf", "has no place");
}

}  // namespace

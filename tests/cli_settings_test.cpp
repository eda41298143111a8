#include <algorithm>
#include <string>
#include <utility>

#include "emulator/emulator.h"
#include "support/cli.h"

// What z7xfer is told of a transfer, and what it finds out where it is told nothing.

namespace {

namespace fs = std::filesystem;

class CliSettings : public Cli {
protected:
    // Everything but the answers of a program that a person reads.
    std::string received(const std::string& arguments) const {
        const Outcome outcome = run("receive " + arguments);
        EXPECT_EQ(outcome.status, 0) << arguments << "\n" << outcome.errors;
        return outcome.output;
    }
    void useOwnHost() const { fs::copy_file(fs::path(binFolder()) / "sample.db", path("my.db")); }
};

TEST_F(CliSettings, SettingsAreListedWithTheirWords) {
    const Outcome all = run("settings");
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(std::count(all.output.begin(), all.output.end(), '\n'), 2 * 55) << "two lines a setting";
    const std::pair<const char*, const char*> cases[] = {{"dateformat", "  4 iso           yyyy-mm-dd\n"},
                                                         {"125", "default  iso\n"},
                                                         {"119", "  6 dif "},
                                                         {"Ignore", "no, yes"},
                                                         {"HostSystemName", "default  SAMPLE\n"},
                                                         {"filetext", "at most 50 characters"},
                                                         {"LastReturnCode", "by the library"},
                                                         {"date", " 127 DateSeparator  "}};
    for (const auto& [name, text] : cases) {
        const std::string output = run(std::string("settings ") + name).output;
        EXPECT_NE(output.find(text), std::string::npos) << name << "\n" << output;
    }
}

TEST_F(CliSettings, OptionsStandForSettingsAndTypesForNames) {
    const std::string file = "WORLD/LEAPSEC ";
    const std::pair<const char*, const char*> cases[] = {
        {"--date-format USA", "--set 125=8"},
        {"--date-format ymd --set dateseparator=slash", "--set 125=9 --set 127=7"},
        {"--transport As400", "--set TransportType=30"}};
    const std::string plain = received(file);
    for (const auto& [words, numbers] : cases) {
        const std::string output = received(file + words);
        EXPECT_TRUE(output == received(file + numbers)) << words;
        EXPECT_EQ(output == plain, std::string(words).starts_with("--transport")) << words;
    }
    const std::pair<const char*, const char*> names[] = {{"a.csv", "csv"},  {"a.TSV", "tab"},   {"a.b.tab", "tab"},
                                                         {"a.dif", "dif"},  {"a.txt", "text"},  {"a.prn", "text"},
                                                         {"a.bin", "none"}, {"a.dat", "none"},  {"dif", "csv"},
                                                         {"a.xyz", "csv"},  {"d.dif/a", "csv"}, {"a.", "csv"}};
    fs::create_directory(path("d.dif"));
    for (const auto& [name, type] : names) {
        received(file + name);
        const std::string implied = read(name);
        received(file + name + " --type " + type);
        EXPECT_TRUE(implied == read(name)) << name;
    }
}

TEST_F(CliSettings, HostSaysItsCodePage) {
    const std::string pc = " --ansi-code-page 932 --language-id 0x411";
    const std::string japanese = received("JAPAN/PREF" + pc);
    EXPECT_TRUE(japanese == received("JAPAN/PREF --host-code-page 939" + pc));
    writeFile(path("page.set"), "HostCodePage=37\n");
    EXPECT_EQ(run("receive JAPAN/PREF --settings page.set" + pc).output.find(japanese), std::string::npos);
    useOwnHost();
    expect(0, "receive JAPAN/PREF p.csv --describe '*.fdf'" + pc, "complete");
    // Another one is noted, once, in front of the check's findings and of the records.
    const std::pair<const char*, const char*> others[] = {
        {"send p.csv JAPAN/PREF --description p.fdf --check --host-code-page 930", "939 for NAME, CAPITAL\n"},
        {"send p.csv JAPAN/PREF --description p.fdf --answer replace --host-code-page 930", "939 for NAME, CAPITAL\n"},
        {"send p.csv JAPAN/PREF --description p.fdf --answer no --no-check --host-code-page 930", ""},
        {"send p.csv JAPAN/PREF --description p.fdf --answer replace --no-check --settings page.set", "939 for NAME"},
        {"receive \"JAPAN/PREF WORLD/ZONE\" --join T1.CODE=T2.ZONENO --columns NAME,ZONE",
         "37 for ZONE\n    a transfer"},
        {"send p.csv JAPAN/P2 --description p.fdf --create file --check --host-code-page 930", ""}};
    for (const auto& [command, told] : others) {
        const std::string errors = run(command + (" --host-data my.db" + pc)).errors;
        const std::size_t note = errors.find("z7xfer: note: ");
        EXPECT_EQ(note == std::string::npos, *told == '\0') << command << errors;
        EXPECT_NE(errors.find(told), std::string::npos) << command << errors;
        EXPECT_TRUE(*told == '\0' || errors.find("note: ", note + 14) == std::string::npos) << errors;
    }
    const std::string own = " --host-data my.db" + pc;
    expect(0, "send p.csv 'JAPAN/PREF(NEW)' --description p.fdf --create member" + own, "complete: 47");
    EXPECT_TRUE(received("'JAPAN/PREF(NEW)'" + own) == japanese);
}

TEST_F(CliSettings, FieldsAreListedAsTheirRecordsHaveThem) {
    const std::string one = run("browse JAPAN/PREF --fields").output;
    EXPECT_EQ(one,
              "CODE\tZONED\t2\t0\t\t0\tNumber\n"
              "NAME\tDBCS\t10\t\t939\t2\tName\n"
              "CAPITAL\tOPEN\t24\t\t939\t12\tCapital, name in Latin letters\n"
              "AREA\tPACKD\t7\t0\t\t36\tArea in square kilometres, rounded\n");
    const std::string two = run("browse \"WORLD/ZONE, WORLD/COUNTRY\" --fields").output;
    EXPECT_NE(two.find("t1.LON\tPACKD\t7\t4\t\t42\t"), std::string::npos) << two;
    EXPECT_NE(two.find("t2.NAME\tCHAR\t45\t\t37\t2\t"), std::string::npos) << two;
}

TEST_F(CliSettings, HeaderIsWrittenAndNotSent) {
    useOwnHost();
    const std::string titles = "CUSTNO,NAME,STREET,CNTRY,PHONE,ORDERS,DISC,BAL,RATE,FLAGS\r\n";
    const struct {
        const char* options;
        char separator;
    } cases[] = {{"", ','}, {" --type tab", '\t'}};
    for (const auto& row : cases) {
        const std::string options = row.options;
        const std::string bare = received("QGPL/CUST" + options);
        std::string header = titles;
        std::replace(header.begin(), header.end(), ',', row.separator);
        const Outcome with = run("receive QGPL/CUST c.csv --header --describe '*.fdf'" + options);
        EXPECT_TRUE(read("c.csv") == header + bare) << options;
        EXPECT_NE(with.errors.find("10 records, " + std::to_string(header.size() + bare.size()) + " bytes"),
                  std::string::npos)
            << with.errors;
        const std::string send = "send c.csv 'QGPL/CUST(NEW)' --description c.fdf --header --host-data my.db" + options;
        const std::string receive = "'QGPL/CUST(NEW)' --host-data my.db" + options;
        expect(0, send + " --create member", "complete: 10 records");
        EXPECT_TRUE(received(receive) == bare) << options;
        // The first record is the one behind the header.
        expect(0, send + " --start-record 2 --answer replace", "complete: 9 records");
        EXPECT_TRUE(received(receive) == bare.substr(bare.find('\n') + 1)) << options;
        fs::remove(path("my.db"));
        useOwnHost();
    }
    // Once in a file that is added to, and in one without a record too.
    const std::string before = read("c.csv");
    expect(0, "receive QGPL/CUST c.csv --header --type tab --set ExistingFileAction=append", "complete");
    EXPECT_TRUE(read("c.csv") == before + before.substr(before.find('\n') + 1));
    expect(0, "receive QGPL/EMPTY e.csv --header", "complete: 0 records");
    EXPECT_EQ(read("e.csv"), "KEY,TEXT\r\n");
}

TEST_F(CliSettings, StandardStreamsSpeakAsTheyAreAsked) {
    useOwnHost();
    const std::string query = "WORLD/COUNTRY --where \"CODE = 'CI'\"", pc = "CI,C\xF4te d'Ivoire\r\n",
                      utf8 = "CI,C\xC3\xB4te d'Ivoire\r\n";
    // Without a console Windows has the PC's own code page for one, and no variable that would change it.
    const std::string& terminal = emulator::pcIsPlayed() ? utf8 : pc;
    const std::pair<const char*, const std::string&> cases[] = {{"", pc},
                                                                {" --encoding pc", pc},
                                                                {" --encoding terminal", terminal},
                                                                {" --encoding TERMINAL --type tab", terminal}};
    environment_["LC_ALL"] = "C.UTF-8";
    for (const auto& [options, expected] : cases) {
        std::string output = received(query + options);
        std::replace(output.begin(), output.end(), '\t', ',');
        EXPECT_EQ(output, expected) << options;
    }
    if (!emulator::pcIsPlayed()) return;
    environment_["LC_ALL"] = "C";
    EXPECT_EQ(received(query + " --encoding terminal"), utf8) << "a locale that says nothing";
    EXPECT_TRUE(received(query + " --type none --encoding terminal") == received(query + " --type none"));

    received(query + " x.csv --describe '*.fdf'");
    const std::string send =
        "send - 'WORLD/COUNTRY(NEW)' --description x.fdf --create member --host-data my.db --encoding ";
    EXPECT_NE(run(send + "terminal", utf8).errors.find("complete: 1 record, 18 bytes, standard input"),
              std::string::npos);
    EXPECT_EQ(received("'WORLD/COUNTRY(NEW)' --host-data my.db"), pc);
    const Outcome strange = run(send + "terminal", utf8 + "JP,\xE6\x97\xA5\n");
    EXPECT_EQ(strange.status, 1);
    EXPECT_NE(strange.errors.find("standard input, line 2: code page 1252 cannot hold"), std::string::npos);
}

}  // namespace

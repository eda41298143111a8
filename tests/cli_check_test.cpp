#include <random>
#include <sstream>
#include <utility>
#include <vector>

#include "support/cli.h"

// What `z7xfer send` finds in a PC file before it sends it.

namespace {

namespace fs = std::filesystem;

const std::string Sound = "all would arrive as written";

class CliCheck : public Cli {
protected:
    CliCheck() { fs::copy_file(fs::path(binFolder()) / "sample.db", path("my.db")); }

    // A received file and its description.
    void receive(const std::string& hostFile, const std::string& pcFile, const std::string& options = {}) const {
        const Outcome outcome = run("receive " + hostFile + " " + pcFile + " --describe '*.fdf' " + host(options));
        ASSERT_EQ(outcome.status, 0) << outcome.errors;
    }
    Outcome check(const std::string& pcFile, const std::string& hostFile, const std::string& options = {}) const {
        const std::string description = fs::path(pcFile).stem().string() + ".fdf";
        return run("send " + pcFile + " " + hostFile + " --description " + description + " --check " + host(options));
    }
    void expectSound(const std::string& pcFile, const std::string& hostFile, const std::string& options = {}) const {
        const Outcome outcome = check(pcFile, hostFile, options);
        EXPECT_EQ(outcome.status, 0) << pcFile << options;
        EXPECT_EQ(outcome.output, "") << pcFile << options;
        EXPECT_NE(outcome.errors.find(Sound), std::string::npos) << outcome.errors;
    }
    static std::string host(const std::string& options) { return options + " --host-data my.db"; }
    std::string database() const { return read("my.db"); }
};

// --- The reports of docs/check_report.md ----------------------------------------------------------------------------

// \xNN stands for a byte; lines end with CR LF.
std::string fileOf(const std::string& shown) {
    std::string bytes;
    for (std::size_t at = 0; at < shown.size(); ++at) {
        if (shown.compare(at, 2, "\\x") == 0) {
            bytes += static_cast<char>(std::stoi(shown.substr(at + 2, 2), nullptr, 16));
            at += 3;
        } else {
            bytes += shown[at] == '\n' ? "\r\n" : std::string(1, shown[at]);
        }
    }
    return bytes;
}

// The page between its fences: prose and blocks by turns, each block with its first line, which names its kind.
std::vector<std::string> blocksOf(const std::string& page) {
    std::vector<std::string> blocks;
    for (std::size_t start = 0, end = 0; end != std::string::npos; start = end + 3) {
        end = page.find("```", start);
        blocks.push_back(page.substr(start, end == std::string::npos ? end : end - start));
    }
    return blocks;
}

std::string withoutKind(const std::string& block) { return block.substr(block.find('\n') + 1); }

TEST_F(CliCheck, ReportsAreThoseOfTheDocumentation) {
    for (const auto& [hostFile, pcFile] : {std::pair("QGPL/CUST", "csv.csv"),
                                           {"WORLD/LEAPSEC", "dif.dif --type dif"},
                                           {"WORLD/COUNTRY", "country.csv"},
                                           {"WORLD/ZONE", "zone.text --type text"}}) {
        receive(hostFile, pcFile);
    }
    const std::string before = database();
    std::vector<std::string> blocks = blocksOf(fileBytes(Z7X_CHECK_REPORT));
    ASSERT_EQ(blocks.size() % 6, 1u);
    for (std::size_t at = 1; at + 4 < blocks.size(); at += 6) {
        const std::string command = withoutKind(blocks[at]).substr(std::string("z7xfer ").size());
        const std::string file = withoutKind(blocks[at + 2]);
        writeFile(path(splitWords(command)[1]), fileOf(file));
        const Outcome outcome = run(host(command.substr(0, command.find('\n'))));
        const std::string report = "text\n" + outcome.output + outcome.errors;
        EXPECT_EQ(blocks[at + 4], report) << command;
        EXPECT_NE(outcome.status, 0) << command;
        blocks[at + 4] = report;
    }
    EXPECT_TRUE(database() == before);
    if (!std::getenv("Z7X_REWRITE_TRANSFERS")) return;
    std::string page = blocks[0];
    for (std::size_t at = 1; at < blocks.size(); ++at) page += "```" + blocks[at];
    writeFile(Z7X_CHECK_REPORT, page);
}

// --- What is sent ----------------------------------------------------------------------------------------------------

TEST_F(CliCheck, NothingOfAFileWithARefusedRecordIsSent) {
    receive("QGPL/CUST", "c.csv");
    std::string bytes = read("c.csv");
    bytes.insert(bytes.find("100003") + 1, "x");
    writeFile(path("c.csv"), bytes);
    const std::string send = "send c.csv 'QGPL/CUST(NEW)' --description c.fdf --create member --host-data my.db";
    const std::string before = database();
    for (const char* options : {"", " --quiet", " --allow-changes", " --answer yes"}) {
        const Outcome outcome = run(send + options);
        EXPECT_NE(outcome.status, 0) << options;
        EXPECT_NE(outcome.errors.find("record 3 (line 3), field CUSTNO: \"1x00003\" is refused"), std::string::npos);
        EXPECT_TRUE(database() == before) << options;
    }
}

TEST_F(CliCheck, WhatKeepsAFileFromBeingCheckedHasItsStatus) {
    receive("QGPL/CUST", "c.csv");
    expect(3, host("send c.csv QGPL/NOPE --description c.fdf --check"), "not checked: HSF1011 File NOPE");
    expect(4, host("send no.csv QGPL/CUST --description c.fdf --check"), "not checked: The file no.csv");
    expect(4, host("send c.csv QGPL/CUST --description no.fdf --check"), "not checked: The file no.fdf");
    expect(2, host("send c.csv QGPL/CUST --check"), "not checked: A transfer to a data file");
}

TEST_F(CliCheck, ChangesAreSentWhenSomebodySaysSo) {
    receive("QGPL/CUST", "c.csv");
    writeFile(path("c.csv"), "7,A name that is much longer than its field,S,US,5,1,1.5,2,.5,F0F1\r\n");
    const std::string send = "send c.csv 'QGPL/CUST(NEW)' --description c.fdf --create member --host-data my.db";
    const Outcome declined = run(send + " --answer yes");
    EXPECT_NE(declined.status, 0);
    EXPECT_NE(lastLine(declined.errors).find("not sent: "), std::string::npos) << declined.errors;
    const Outcome allowed = expect(0, send + " --allow-changes", "the text has 41 bytes, the field 25");
    EXPECT_NE(lastLine(allowed.errors).find("complete: 1 record"), std::string::npos);
    run("receive 'QGPL/CUST(NEW)' back.csv --host-data my.db");
    EXPECT_EQ(read("back.csv"), "7,A name that is much longe,S,US,5,1,1.5,2.,.5,F0F1\r\n");
    EXPECT_EQ(
        expect(0, "send c.csv QGPL/CUST --description c.fdf --no-check --answer yes --host-data my.db", "complete")
            .errors.find("much"),
        std::string::npos);
}

TEST_F(CliCheck, EveryRefusedRecordIsFoundWhereverItStands) {
    receive("QGPL/CUST", "c.csv");
    receive("QGPL/CUST", "d.dif", "--type dif");
    receive("QGPL/CUST", "r.dat", "--type random");
    const std::string line = ",Smith,S,US,5,1,1.5,2,.5,F0F1";
    std::string csv, dif = read("d.dif").substr(0, read("d.dif").find("-1,0\r\nBOT\r\n0,")), random;
    const std::string tuple =
        "\r\nV\r\n1,0\r\n\"S\"\r\n1,0\r\n\"S\"\r\n1,0\r\n\"US\"\r\n1,0\r\n\"5\"\r\n0,1\r\nV\r\n0,1.5\r\n"
        "V\r\n0,2\r\nV\r\n0,.5\r\nV\r\n1,0\r\n\"F0F1\"\r\n";
    for (int record = 0; record < 400; ++record) {
        const std::string number = record % 4 == 3 ? "x" : std::to_string(record);
        csv += number + line + (record % 3 == 0 ? "\n" : "\r\n");
        dif += "-1,0\r\nBOT\r\n0," + number + tuple;
        std::string bytes = read("r.dat").substr(0, 84);
        if (record % 4 == 3) bytes[2] = '\x3A';
        random += bytes;
    }
    writeFile(path("c.csv"), csv + std::string(5000, 'x') + "\n1" + line);
    writeFile(path("d.dif"), dif + "-1,0\r\nEOD\r\n");
    writeFile(path("r.dat"), random);
    const std::pair<const char*, const char*> cases[] = {{"c.csv", "of 402 records 101 would be refused"},
                                                         {"d.dif", "of 400 records 100 would be refused"},
                                                         {"r.dat", "of 400 records 100 would be refused"}};
    for (const auto& [file, summary] : cases) {
        const Outcome outcome = check(file, "QGPL/CUST");
        EXPECT_NE(outcome.errors.find(summary), std::string::npos) << file << outcome.errors;
        EXPECT_NE(outcome.output.find("CUSTNO: refused (100)"), std::string::npos) << outcome.output;
    }
    std::string many;
    while (many.size() < 10001 * 2) many += "x\n";
    writeFile(path("c.csv"), many);
    EXPECT_NE(check("c.csv", "QGPL/CUST").errors.find("of the first 10,000 records 10,000 would"), std::string::npos);
    EXPECT_NE(check("d.dif", "QGPL/CUST").output.find("row 9 (line "), std::string::npos);
    EXPECT_NE(check("r.dat", "QGPL/CUST").output.find("record 8 (byte 588), field CUSTNO"), std::string::npos);
}

TEST_F(CliCheck, RecordThatEndsAnUncheckedSendIsToldAsACheckWould) {
    receive("QGPL/CUST", "c.csv");
    receive("QGPL/CUST", "d.dif");
    const std::string record = "100002,Smith,S,US,5,1,1.5,2,.5,F0F1\r\n";
    const struct {
        std::string record;
        const char* told;
    } cases[] = {
        {"1000x2,S,S,US,5,1,1.5,2,.5,F0F1", "field CUSTNO: \"1000x2\" is refused\n    \"x\" is no digit"},
        {"7,S,S,US,5,1,1.5,123456789012345.5,.5,F0F1", "15 digits before the decimal separator, the field has 9"},
        {"7,S,S,US,5,1,1.5,2\x81,.5,F0F1", "field BAL: \"2.\" is refused\n    U+0081 is no digit"},
        {"7,S,S,US,5,1,1.5,2,.5,F\xC4X0", "only F0 to F9 and 40 can be sent, not FÄ"},
        {std::string(5000, '7'), "a record has at most 4,094 characters"}};
    const auto send = [&](const std::string& file, const std::string& input = {}) {
        return run(host("send " + file + " --answer replace --no-check"), input).errors;
    };
    for (const auto& row : cases) {
        const std::string bytes = record + row.record + "\r\n" + record + "not looked at\r\n";
        writeFile(path("f.csv"), bytes);
        const std::string errors = send("f.csv QGPL/CUST --description c.fdf");
        EXPECT_NE(errors.find("\nrecord 2 (line 2)"), std::string::npos) << errors;
        EXPECT_NE(errors.find(row.told), std::string::npos) << errors;
        EXPECT_EQ(errors.find("record 4"), std::string::npos) << errors;
        EXPECT_NE(send("- QGPL/CUST --description c.fdf", bytes).find(row.told), std::string::npos) << row.told;
    }
    std::string dif = read("d.dif");
    writeFile(path("d.dif"), dif.replace(dif.find("100003"), 6, "x"));
    EXPECT_NE(send("d.dif QGPL/CUST --description d.fdf").find("row 4 (line 81), field CUSTNO: \"x\""),
              std::string::npos);
}

TEST_F(CliCheck, LayoutOfANewFileIsWhatTheHostWillMakeOfIt) {
    receive("WORLD/COUNTRY", "c.csv");
    writeFile(path("c.csv"), "ABC," + std::string(46, 'x') + "\r\n");
    const std::pair<const char*, const char*> cases[] = {{"QGPL/COUNTRY", "the field 2"},  // as the file of that name
                                                         {"QGPL/OTHER", ""},               // texts of 50
                                                         {"QGPL/OTHER --reference WORLD/COUNTRY", "the field 45"}};
    const std::string before = database();
    for (const auto& [target, reason] : cases) {
        const Outcome outcome = check("c.csv", target, "--create file");
        EXPECT_EQ(outcome.status == 0, *reason == '\0') << target << outcome.errors;
        EXPECT_NE(outcome.output.find(reason), std::string::npos) << target << outcome.output;
    }
    writeFile(path("long.txt"), std::string(81, 'x') + "\r\n" + std::string(80, 'y') + "\r\n\r\n");
    for (const char* target : {"'QGPL/QCLSRC(NEW)' --create member", "QGPL/NEWSRC --create file"}) {
        const Outcome outcome = run(host(std::string("send long.txt --type text --source --check ") + target));
        EXPECT_NE(outcome.output.find("record 1 (line 1), field SRCDTA"), std::string::npos) << outcome.errors;
        EXPECT_NE(outcome.errors.find("of 3 records 1 thing"), std::string::npos) << outcome.errors;
    }
    EXPECT_TRUE(database() == before);
}

// --- No false alarms -------------------------------------------------------------------------------------------------

// Records that a careful person would write for QGPL/CUST.
class CleanRecords {
public:
    CleanRecords(unsigned seed, char separator, char decimal)
        : random_(seed), separator_(separator), decimal_(decimal) {}

    std::string record() {
        std::string line = std::to_string(upTo(999999));
        for (const std::size_t length : {25, 20, 2, 10}) line += separator_ + text(length);
        line += separator_ + std::string(upTo(1) ? "-" : "") + std::to_string(upTo(2147483647));
        for (const auto& [digits, decimals] : {std::pair(5, 2), {9, 2}, {2, 3}})
            line += separator_ + number(digits, decimals);
        std::string flags = separator_ + std::string("F") + std::to_string(upTo(9)) + "F" + std::to_string(upTo(9));
        if (upTo(1)) flags = flags.substr(0, 1) + '"' + flags.substr(1) + '"';
        return line + flags + (upTo(1) ? "\r\n" : "\n");
    }

private:
    int upTo(int last) { return std::uniform_int_distribution<int>(0, last)(random_); }
    // Bare where it may be, with blanks behind it and quotes inside. A received text is not quoted for a semicolon.
    std::string text(std::size_t length) {
        constexpr char Characters[] = "AZaz09 .-'&/\"\xC4\xE9\xDF,";
        std::string text;
        for (int rest = upTo(static_cast<int>(length)); rest > 0; --rest)
            text += Characters[upTo(sizeof Characters - 2)];
        if (text.find_first_of("\",") == std::string::npos && upTo(2) > 0) return text;
        std::string quoted;
        for (const char character : text) quoted += character == '"' ? "\"\"" : std::string(1, character);
        return '"' + quoted + '"';
    }
    std::string number(int digits, int decimals) {
        std::string text = upTo(3) == 0 ? " -" : "";
        for (int place = upTo(digits - 1); place >= 0; --place) text += static_cast<char>('0' + upTo(9));
        const int places = upTo(decimals);
        if (places > 0 || upTo(1)) text += decimal_;
        for (int place = 0; place < places; ++place) text += static_cast<char>('0' + upTo(9));
        if (places == decimals && upTo(1)) text += "00";
        return text + std::string(static_cast<std::size_t>(upTo(2)), ' ');
    }

    std::mt19937 random_;
    char separator_, decimal_;
};

TEST_F(CliCheck, CleanFilesOfEveryTypeArriveAsWritten) {
    for (const auto& [separator, decimal] : {std::pair(',', '.'), {';', ','}}) {
        const std::string pc =
            std::string(" --decimal ") + decimal + " --list-separator '" + separator + "' --answer replace";
        receive("QGPL/CUST", "clean.csv", pc);
        CleanRecords records(decimal, separator, decimal);
        std::string bytes;
        for (int record = 0; record < 500; ++record) bytes += records.record();
        writeFile(path("clean.csv"), bytes);
        expectSound("clean.csv", "QGPL/CUST", pc);
        ASSERT_EQ(run(host("send clean.csv QGPL/CUST --description clean.fdf" + pc)).status, 0);
        for (const std::string type : {"text", "csv", "random", "none", "tab", "dif"}) {
            receive("QGPL/CUST", type + "." + type, "--type " + type + pc);
            expectSound(type + "." + type, "QGPL/CUST", pc);
        }
    }
}

TEST_F(CliCheck, ReceivedFilesArriveAsWritten) {
    for (const char* hostFile : {"QGPL/CUST", "WORLD/STATE --set HostCodePage=273", "WORLD/LEAPSEC", "WORLD/ZONE"}) {
        const std::string words = hostFile, name = words.substr(0, words.find(' ')),
                          options = words.substr(name.size());
        for (const std::string type : {"text", "basic", "csv", "random", "none", "tab", "dif"}) {
            receive(name, "f." + type, "--type " + type + options);
            expectSound("f." + type, name, options);
        }
    }
    receive("WORLD/LEAPSEC", "day.csv", "--set DateFormat=7 --set TimeFormat=6");  // other formats than the check's own
    expectSound("day.csv", "WORLD/LEAPSEC");
}

TEST_F(CliCheck, DoubleByteTextsArriveAsWritten) {
    const std::string japanese = " --set HostCodePage=939 --ansi-code-page 932 --language-id 0x411";
    for (const std::string type : {"text", "basic", "csv", "random", "tab", "dif"}) {
        receive("JAPAN/PREF", "p." + type, "--type " + type + japanese);
        expectSound("p." + type, "JAPAN/PREF", japanese);
    }
}

}  // namespace

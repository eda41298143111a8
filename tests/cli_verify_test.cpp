#include "support/cli.h"

// What a receive says of records that cannot be read again: everything with --verify, the first one without.

namespace {

namespace fs = std::filesystem;

const std::string Sound = "verified: all comes back as the host has it";

class CliVerify : public Cli {
protected:
    CliVerify() { fs::copy_file(fs::path(binFolder()) / "sample.db", path("my.db")); }

    Outcome receive(const std::string& hostFile, const std::string& options) const {
        return run("receive '" + hostFile + "' out.csv --host-data my.db " + options);
    }
    // Has QGPL/CUST(ODD) hold a record for each name, whose bytes are the host's, and its number from 1 on.
    void makeOddMember(const std::vector<std::string>& names) const {
        ASSERT_EQ(receive("QGPL/CUST", "--type none --describe out.fdf").status, 0);
        const std::string model = read("out.csv").substr(0, 84);
        std::string records;
        for (std::size_t at = 0; at < names.size(); ++at) {
            std::string record = model, name = names[at];
            record.replace(4, 2, {static_cast<char>(0xF0 + (at + 1) / 10), static_cast<char>(0xF0 + (at + 1) % 10)});
            name.resize(25, '\x40');
            records += record.replace(6, 25, name);
        }
        writeFile(path("odd.bin"), records);
        const Outcome sent =
            run("send odd.bin 'QGPL/CUST(ODD)' --description out.fdf --create member --host-data my.db");
        ASSERT_EQ(sent.status, 0) << sent.errors;
    }
};

TEST_F(CliVerify, EveryRecordThatCannotBeReadAgainIsTold) {
    makeOddMember({"\x97\x93\x81\x89\x95", "\x81\x25\x82", "\x81\x0D\x82", "\x81\x3F\x82", std::string("\x81\0\x82", 3),
                   std::string(25, '\0'), "\x81\x7F\x6B\x82", "\x81\x5E\x82", "\x81\x05\x82", "\x81\x6F", "\x81\x69"});
    const std::string name = "field NAME: ", lineFeed = "\"a.b\" would come back as \"a\"\n    a line feed (0A)";
    const struct {
        const char* options;
        std::vector<std::string> found;  // the first also without --verify, but for its place in the file
    } rows[] = {
        {"--type csv",
         {"record 2 (line 2), " + name + lineFeed, "record 3 (line 4), " + name, "record 4 (line 5), " + name,
          "record 5 (line 6), " + name + "\"a.b\" would come back as \"a\"\n    a zero byte stands in the text"}},
        {"--type csv --list-separator ;",
         {"record 2 (line 2)", "record 3 (line 4)", "record 4 (line 5)", "record 5 (line 6)",
          "record 8 (line 9), " + name + "\"a;b\" would come back as \"a\"\n    the text holds the separator \";\""}},
        {"--type csv --host-code-page 1025 --columns CUSTNO,NAME --where 'CUSTNO > 100009'",
         {"record 2 (line 2), " + name + "\"aЉ\" would come back as \"a?\"\n    Љ (U+0409) is not in code page 1252"}},
        {"--type tab --header", {"record 2 (line 3)", "record 3 (line 5)", "record 4 (line 6)", "record 5 (line 7)"}},
        {"--type basic",
         {"record 2", "record 3", "record 4", "record 5",
          "record 7 (line 8), " + name + "\"a\",b\" would come back as \"a\"\n    a quote inside the text"}},
        {"--type basic --decimal , --list-separator ; --columns CUSTNO,RATE --where 'CUSTNO = 100001'",
         {"record 1 (line 1), field CUSTNO: \"100001\" would come back as \"100001,12,5\""}},
        {"--type dif", {"row 4 (line 82), " + name + "\"a.b\" would come back as \"a.b\"\n", "row 6 (line 126)"}},
        {"--type text",
         {"record 2", "record 3", "record 4",
          "record 5 (line 6), " + name + "\"a.b\" would come back as \"a b\"\n    a zero byte stands in the text"}},
        {"--type csv --columns NAME --where 'CUSTNO = 100006'",
         {"record 1 (line 1), not sent back\n    a send leaves it out"}},
        {"--type random", {}},
        {"--type none", {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.options);
        const Outcome outcome = receive("QGPL/CUST(ODD)", row.options + std::string(" --verify"));
        for (const std::string& found : row.found)
            EXPECT_NE(outcome.errors.find(found), std::string::npos) << found << "\n" << outcome.errors;
        const std::string count = std::to_string(row.found.size()) + (row.found.size() == 1 ? " thing" : " things");
        const std::string verdict = row.found.empty() ? Sound : "verified: " + count + " would not come back";
        EXPECT_EQ(outcome.status, row.found.empty() ? 0 : 5);
        EXPECT_NE(lastLine(outcome.errors).find(verdict), std::string::npos) << outcome.errors;

        const Outcome without = receive("QGPL/CUST(ODD)", row.options);
        const bool isNoted = !row.found.empty() && row.found[0].find("not sent back") == std::string::npos;
        const std::string place = isNoted ? row.found[0].substr(0, row.found[0].find(" (")) : "";
        EXPECT_EQ(without.status, 0);
        const std::string said = isNoted ? "note: " + place + ", field " : "would not be read back";
        EXPECT_EQ(without.errors.find(said) != std::string::npos, isNoted) << without.errors;
    }
    EXPECT_EQ(receive("QGPL/CUST(ODD)", "--type random --host-code-page 43 --verify").status, 0);
}

TEST_F(CliVerify, RecordsAddedToHalfARecordAreTold) {
    for (const char* type : {"csv", "random"}) {
        const std::string options = std::string("--append --type ") + type;
        writeFile(path("out.csv"), "abc");
        EXPECT_TRUE(receive("QGPL/CUST", options + " --verify").errors.starts_with("the file, records joined\n"))
            << type;
        writeFile(path("out.csv"), "abc");
        EXPECT_TRUE(receive("QGPL/CUST", options).errors.starts_with("z7xfer: note: out.csv existed, and ")) << type;
    }
}

// Texts with commas, quotes and letters of many pages, numbers of all kinds, in every type, and behind what was there.
TEST_F(CliVerify, WhatCanBeReadAgainIsSound) {
    for (const char* hostFile : {"QGPL/CUST", "QGPL/QCLSRC", "TESTLIB/TELLTALE", "WORLD/LEAPSEC"}) {
        for (const char* options :
             {"--type text", "--type csv --header", "--type random", "--type none", "--type tab", "--type dif",
              "--type csv --decimal , --list-separator '|'", "--type csv --append"}) {
            const Outcome outcome = receive(hostFile, options + std::string(" --verify"));
            EXPECT_EQ(outcome.status, 0) << hostFile << " " << options << "\n" << outcome.errors;
            EXPECT_NE(outcome.errors.find(Sound), std::string::npos) << outcome.errors;
            EXPECT_EQ(receive(hostFile, options).errors.find("note"), std::string::npos) << hostFile << options;
        }
    }
    EXPECT_EQ(receive("QGPL/CUST", "--type basic --verify").status, 0);
    EXPECT_EQ(run("receive QGPL/CUST - --verify").status, 2);
    expect(5, "receive TESTLIB/STOCK out.csv --force --ignore-decimal-errors --verify",
           "record 2 (line 2), field QTY: \"404040\" would come back as \"40404\"");
}

TEST_F(CliVerify, DoubleByteTextsAreReadAgain) {
    const std::string japanese = "--ansi-code-page 932 --language-id 0x411 --verify";
    for (const std::string options : {"--type csv ", "--type text ", "--type dif "})
        EXPECT_NE(receive("JAPAN/PREF", options + japanese).errors.find(Sound), std::string::npos) << options;
}

}  // namespace

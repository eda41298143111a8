#include <filesystem>

#include "emulator/emulator.h"
#include "support/cli.h"

// Arguments as they were typed, on a system that would take some of them for something else.

namespace {

namespace fs = std::filesystem;

TEST_F(Cli, NamesMayBeInAnyLanguage) {
    expect(0, "receive WORLD/STATE länder.csv --set HostCodePage=273 --where \"NAME LIKE '%ü%'\"", "länder.csv\n");
    EXPECT_NE(fileBytes(folder / u8"länder.csv").find("W\xFCrttemberg"), std::string::npos);
    // The library knows PC files by their names in the PC's code page; others are z7xfer's own.
    const Outcome strange = expect(2, "receive WORLD/COUNTRY 国々.csv", "code page 1252 cannot hold the text 国々.csv");
    EXPECT_EQ(strange.output, "");
    fs::copy_file(fs::path(binFolder()) / "sample.db", folder / u8"日本.db");
    writeFile(folder / u8"型.set", "ReceiveFileType=5\n");
    expect(0, "receive QGPL/CUST c.txt --host-data 日本.db --settings 型.set --journal 日誌.txt",
           "complete: 10 records");
    EXPECT_NE(read("c.txt").find('\t'), std::string::npos);
    EXPECT_NE(fileBytes(folder / u8"日誌.txt").find("pen"), std::string::npos);
    expect(2, "receive QGPL/CUST c.txt --host-data 国々.db", "国々.db");
}

TEST_F(Cli, WhatBeginsWithASlashIsAPathAndPatternsStay) {
    const fs::path below = "/" / folder.relative_path() / "s.csv";
    expect(0, "receive WORLD/COUNTRY " + below.generic_string(), "complete: ");
    EXPECT_TRUE(fs::exists(path("s.csv")));
    expect(2, "receive WORLD/COUNTRY /q /r", "/r");
    // A shell that was told not to leaves the pattern, and there are files that it fits.
    writeFile(path("old.fdf"), "");
    expect(0, "receive WORLD/COUNTRY p.csv --describe '*.fdf'", "complete: ");
    EXPECT_TRUE(fs::exists(path("p.fdf")));
}

TEST_F(Cli, AnotherPcIsPlayedOrRefusedInWords) {
    if (emulator::pcIsPlayed()) {
        expect(0, "receive QGPL/CUST c.csv --ansi-code-page 932 --language-id 0x411", "complete: ");
        return;
    }
    for (const char* const option : {"--ansi-code-page 932", "--oem-code-page 437", "--language-id 0x411"})
        expect(2, std::string("receive QGPL/CUST c.csv ") + option,
               "this PC has ANSI code page 1252, OEM code page 850");
}

}  // namespace

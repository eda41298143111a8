#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/json.h"
#include "cli/pc_text.h"
#include "cli/progress_line.h"
#include "cli/suggestions.h"

// What z7xfer writes for a person, made from plain values.

namespace {

TEST(CliTexts, ProgressLineFitsTheTerminal) {
    constexpr auto Records = Progress::Unit::Records, Bytes = Progress::Unit::Bytes;
    const struct {
        Progress progress;
        int columns;
        const char* line;
    } cases[] = {
        {{0, 0, Records, 0}, 80, "0 records"},
        {{1, 0, Records, 0.9}, 80, "1 record"},
        {{3000, 0, Records, 2}, 80, "3,000 records  1,500/s"},
        {{500, 2000, Records, 10}, 63, "[====             ] 25%  500 of 2,000 records  50/s  0:30 left"},
        {{500, 2000, Records, 10}, 51, "[=    ] 25%  500 of 2,000 records  50/s  0:30 left"},
        {{500, 2000, Records, 10}, 50, "25%  500 of 2,000 records  50/s  0:30 left"},
        {{500, 2000, Records, 10}, 42, "25%  50/s  0:30 left"},
        {{500, 2000, Records, 10}, 20, "25%"},
        {{500, 2000, Records, 10}, 3, ""},
        {{2000, 2000, Records, 1}, 40, "100%  2,000 of 2,000 records  2,000/s"},
        {{2001, 2000, Records, 0}, 41, "[=========] 100%  2,000 of 2,000 records"},
        {{1, 86400000000, Bytes, 2}, 48, "0%  1 of 86,400,000,000 bytes  0 bytes/s"},
        {{999, 1998, Bytes, 1}, 55, "50%  999 of 1,998 bytes  999 bytes/s  0:01 left"},
        {{1440000000, 0, Bytes, 1000}, 80, "1,440,000,000 bytes  1.4 MB/s"},
        {{3600, 3600 + 3723, Records, 3600}, 54, "49%  3,600 of 7,323 records  1/s  1:02:03 left"},
    };
    for (const auto& [progress, columns, line] : cases) EXPECT_EQ(progressLine(progress, columns), line);
}

TEST(CliTexts, NearestWordIsFewEditsAway) {
    const std::vector<std::string> words = {"receive", "send", "demo", "browse", "settings"};
    const std::pair<const char*, const char*> cases[] = {{"recieve", "receive"},
                                                         {"SEND", "send"},
                                                         {"sned", "send"},
                                                         {"sen", "send"},
                                                         {"brow", "browse"},
                                                         {"set", "settings"},
                                                         {"se", ""},
                                                         {"rcv", ""},
                                                         {"", ""},
                                                         {"domain", ""},
                                                         {"dmeo", "demo"},
                                                         {"browser", "browse"},
                                                         {"x", ""}};
    for (const auto& [word, meant] : cases) EXPECT_EQ(nearest(word, words).value_or(""), meant) << word;
    EXPECT_EQ(editDistance("abcd", "acbd"), 1u);
    EXPECT_EQ(editDistance("ca", "abc"), 3u);
    EXPECT_EQ(editDistance("", "abc"), 3u);
}

TEST(CliTexts, CellsOfATextNeverHoldHalfACharacter) {
    const struct {
        const char* text;
        std::size_t first, count;
        const char* cells;
    } cases[] = {{"abcdef", 2, 3, "cde"},  {"abc", 2, 9, "c"},      {"abc", 3, 2, ""},  {"日本語", 0, 4, "日本"},
                 {"日本語", 1, 4, " 本 "}, {"日本語", 0, 3, "日 "}, {"ÄÖÜ", 1, 1, "Ö"}, {"abc", 0, 0, ""}};
    for (const auto& [text, first, count, cells] : cases)
        EXPECT_EQ(cellsOf(text, first, count), cells) << text << first;
}

TEST(CliTexts, JsonTakesAnyBytes) {
    using std::string_literals::operator""s;
    const std::pair<std::string, const char*> cases[] = {
        {"plain Ä 日 😀", "\"plain Ä 日 😀\""},
        {"\"\\/\b\t\n\r"s, R"("\"\\/\u0008\t\n\r")"},
        {"\0\x1F\x7F"s, R"("\u0000\u001F\u007F")"},
        {"\x80\xC0\xAF\xFF", "\"\uFFFD\uFFFD\uFFFD\uFFFD\""},
        {"\xC3", "\"\uFFFD\""},
        {"\xC3(", "\"\uFFFD(\""},
        {"\xE0\x9F\xBF", "\"\uFFFD\uFFFD\uFFFD\""},                    // longer than needed
        {"\xED\xA0\x80", "\"\uFFFD\uFFFD\uFFFD\""},                    // half of a pair
        {"\xED\x9F\xBF\xEE\x80\x80", "\"\xED\x9F\xBF\xEE\x80\x80\""},  // the characters around those
        {"\xF4\x8F\xBF\xBF", "\"\U0010FFFF\""},
        {"\xF4\x90\x80\x80", "\"\uFFFD\uFFFD\uFFFD\uFFFD\""}};
    for (const auto& [bytes, text] : cases) EXPECT_EQ(json::string(bytes), text);
    const std::vector<std::string> none, two = {json::string("a"), "2"};
    EXPECT_EQ(json::Object().number("n", -5).truth("t", false).value("a", json::array(two)).whole(),
              R"({"n":-5,"t":false,"a":["a",2]})");
    EXPECT_EQ(json::array(none) + json::Object().whole(), "[]{}");
}

}  // namespace

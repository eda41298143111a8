#include "support/transfer_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string_view>

#include "emulator/emulator.h"

namespace transferrecord {
namespace {

std::string lowerCase(std::string text) {
    for (char& letter : text)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + 32);
    return text;
}

// The library lower-cases names, so a folder is found in any case.
std::string withoutFolder(std::string line, const std::string& folder) {
    const std::string Word = "FOLDER", Backslash = "\\\\";
    for (std::size_t at; (at = lowerCase(line).find(lowerCase(folder))) != std::string::npos;) {
        line.replace(at, folder.size(), Word);
        if (line.compare(at + Word.size(), Backslash.size(), Backslash) == 0)
            line.replace(at + Word.size(), Backslash.size(), "/");
    }
    return line;
}

// "\x00{41}".
std::string withCounts(const std::string& line) {
    constexpr std::size_t ByteLength = 4, Worthwhile = 4;
    std::string text;
    for (std::size_t at = 0, times = 1; at<line.size(); at += times> 1 ? times * ByteLength : 1, times = 1) {
        const std::string byte = line.substr(at, ByteLength);
        if (byte.starts_with("\\x"))
            while (line.compare(at + times * ByteLength, ByteLength, byte) == 0) ++times;
        if (times < Worthwhile) times = 1;
        text += times > 1 ? byte + '{' + std::to_string(times) + '}' : line.substr(at, 1);
    }
    return text;
}

// Whether the four lines from `line` on are one store item written as it should be.
bool isItemWritten(const Lines& journal, std::size_t line) {
    if (line + 3 >= journal.size() || !journal[line].starts_with("LockStoreList(")) return false;
    const std::string unlock = "Unl" + journal[line].substr(1);
    return journal[line + 1].starts_with("SetStoreItem(") && journal[line + 2] == "taken" &&
           journal[line + 3] + " = 1" == unlock;
}

// The latest progress dialog is the only one there is: its handle, which counts all of before, is told as "*".
void withDialogAsStar(std::string& line, std::string& latest) {
    const bool isCreated = line.starts_with("ProgressDialogCreate(");
    const std::size_t at = line.find(isCreated ? " = " : "(") + (isCreated ? 3 : 1);
    if (!line.starts_with("ProgressDialog")) return;
    const std::string handle = line.substr(at, line.find_first_of(",)", at) - at);
    if (isCreated) latest = handle;
    if (handle == latest && handle != "0") line.replace(at, handle.size(), "*");
}

// Calls of the same kind are one line, as long as that is not too wide.
bool standTogether(const std::string& line, const std::string& next) {
    constexpr std::size_t Wide = 160, Kind = 3;
    const bool areServices = next[0] >= 'A' && next.find(".TF_") == std::string::npos;
    if (line.starts_with("LockStoreList(") && next.starts_with("UnlockStoreList(")) return true;
    return areServices && line.size() < Wide && line.compare(0, Kind, next, 0, Kind) == 0;
}

// What came in the same way before is one line: how many lines, the first and the last. Several that differ between
// the two are all told, so that a line never stands for the wrong ones.
Lines withoutRepeats(const Lines& lines) {
    constexpr std::size_t Shortest = 3;
    Lines kept;
    for (std::size_t at = 0; at < lines.size();) {
        std::size_t longest = 0;
        for (std::size_t from = 0, length; from < at; ++from, longest = std::max(longest, length))
            for (length = 0;
                 from + length < at && at + length < lines.size() && lines[from + length] == lines[at + length];)
                ++length;
        const auto begin = lines.begin() + static_cast<std::ptrdiff_t>(at);
        const auto end = begin + static_cast<std::ptrdiff_t>(longest);
        bool isUnique = longest >= Shortest;
        for (std::size_t from = 0; isUnique && from + longest <= at; ++from)
            isUnique = lines[from] != *begin || lines[from + longest - 1] != end[-1] ||
                       std::equal(begin, end, lines.begin() + static_cast<std::ptrdiff_t>(from));
        kept.push_back(isUnique
                           ? "(" + std::to_string(longest) + " lines as before: " + *begin + " ... " + end[-1] + ")"
                           : *begin);
        at += isUnique ? longest : 1;
    }
    return kept;
}

Lines readLines(const std::string& path) {
    Lines lines;
    std::ifstream file(path, std::ios::binary);
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
}

// As a unified diff shows it, with the place at which both go on alike for two lines, or end.
std::string firstDifference(const Lines& expected, const Lines& actual) {
    constexpr std::size_t Context = 4, Longest = 15;
    const auto same = [&](std::size_t e, std::size_t a) {
        if (e >= expected.size() || a >= actual.size()) return e >= expected.size() && a >= actual.size();
        return expected[e] == actual[a];
    };
    std::size_t at = 0, gone = 0, come = 0;
    while (same(at, at)) ++at;
    for (std::size_t both = 1; !same(at + gone, at + come) || !same(at + gone + 1, at + come + 1);) {
        gone = gone + come < both ? 0 : gone + 1;
        come = both - std::min(gone, both);
        if (gone == both) ++both;
    }
    std::string text = "@@ line " + std::to_string(at + 1) + " @@\n";
    const auto show = [&text](char mark, const Lines& lines, std::size_t begin, std::size_t count) {
        for (std::size_t i = begin; i < std::min({begin + count, lines.size(), begin + Longest}); ++i)
            text += mark + lines[i] + '\n';
        if (count > Longest) text += mark + std::string("... (") + std::to_string(count) + " lines)\n";
    };
    show(' ', expected, at - std::min(at, Context), std::min(at, Context));
    show('-', expected, at, gone);
    show('+', actual, at, come);
    show(' ', expected, at + gone, Context);
    return text;
}

}  // namespace

Lines settled(const Lines& journal, const std::string& folder) {
    std::string dialog;
    const std::string quoted = emulator::quoted(folder);
    Lines lines;
    for (std::size_t i = 0; i < journal.size(); ++i) {
        std::string line = journal[i];
        if (isItemWritten(journal, i)) {
            const std::string list = line.substr(line.find(',') + 2, 4), &set = journal[i + 1];
            line = "monitor " + list + set.substr(set.find(',') + 1);
            i += 3;
        }
        line = withCounts(withoutFolder(line, quoted.substr(1, quoted.size() - 2)));
        withDialogAsStar(line, dialog);
        if (!lines.empty() && standTogether(lines.back(), line))
            lines.back() += "; " + line;
        else if (line.starts_with("answers ") && journal[i - 1].find(".TF_") != std::string::npos)
            lines.back() += ' ' + line;
        else
            lines.push_back(line);
    }
    return withoutRepeats(lines);
}

void expectRecorded(const std::string& name, const Lines& lines) {
    const std::string path = std::string(Z7X_TRANSFERS) + "/" + name + ".txt";
    if (std::getenv("Z7X_REWRITE_TRANSFERS")) {
        std::ofstream file(path, std::ios::binary);
        for (const std::string& line : lines) file << line << '\n';
        return;
    }
    const Lines expected = readLines(path);
    if (lines != expected) ADD_FAILURE() << name << ".txt:\n" << firstDifference(expected, lines);
}

}  // namespace transferrecord

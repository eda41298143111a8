#include "support/run_program.h"

#include <fstream>
#include <iterator>

namespace {

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

Outcome runProgram(const Program& program) {
    const StreamFiles streams = {program.folder / "stdin.txt", program.folder / "stdout.txt",
                                 program.folder / "stderr.txt"};
    std::ofstream(streams.input, std::ios::binary) << program.input;
    Outcome outcome;
    outcome.status = runProgram(program, streams);
    outcome.output = bytesOf(streams.output);
    outcome.errors = bytesOf(streams.errors);
    return outcome;
}

std::vector<std::string> splitWords(std::string_view line) {
    std::vector<std::string> words;
    bool inWord = false;
    char quote = 0;
    for (const char c : line) {
        const bool isQuote = quote ? c == quote : c == '"' || c == '\'';
        if (!quote && c == ' ') {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        if (isQuote) {
            quote = quote ? 0 : c;
        } else {
            words.back() += c;
        }
    }
    return words;
}

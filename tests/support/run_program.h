#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A program of the build, run to its end by the operating system itself: no shell stands between, so that a test means
// the same on both systems.
struct Program {
    std::filesystem::path file;          // whole, without the ending that programs have on Windows
    std::vector<std::string> arguments;  // UTF-8
    std::filesystem::path folder;        // where it starts, and where its streams are kept as files
    // On top of this process's environment: the value of a variable, or nothing when it is to be taken away.
    std::map<std::string, std::optional<std::string>> environment;
    std::string input;  // all that it reads from its standard input
};

struct Outcome {
    int status = -1;  // -1 when it could not be started or had no end of its own
    std::string output, errors;
};

Outcome runProgram(const Program& program);

// The arguments of a line as a shell splits it: blanks separate, quotes of either kind hold together what has some.
// Nothing else has a meaning.
std::vector<std::string> splitWords(std::string_view line);

// --- What the operating system does of it -------------------------------------------------------------------------

// Files that are the standard streams of a program.
struct StreamFiles {
    std::filesystem::path input, output, errors;
};
// The status, or -1.
int runProgram(const Program& program, const StreamFiles& streams);

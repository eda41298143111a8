#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>

#include "compare/random_transfer.h"

// Runs random transfers through the exports of one build of the library ($Z7X_LIBRARY) and prints a line for each: its
// number, a hash of all that can be seen of it from outside, and what it is. Builds that behave alike print the same;
// compare_libraries.sh runs two.
namespace {

constexpr char Usage[] =
    "usage: z7x_random_transfers [--pc N] [--seed N] [--count N] [--show N] [--no-failing-allocations] [--no-journal]\n"
    "  --pc N                    the PC: 0 English, 1 German, 2 Japanese, 3 Korean, 4 and 5 Chinese\n"
    "  --show N                  all of transfer N\n"
    "  --no-failing-allocations  for builds that allocate in another order\n"
    "  --no-journal              for builds that use other services on the way to the same results\n";

struct CommandLine {
    compare::Options options;
    std::uint64_t pc = 0, first = 1, last = 1000;
    bool show = false;

    bool read(int argumentCount, char** arguments);
};

bool CommandLine::read(int argumentCount, char** arguments) {
    for (int at = 1; at < argumentCount; ++at) {
        const std::string_view argument = arguments[at];
        const bool isFlag = argument.starts_with("--no-");
        if (!isFlag && ++at == argumentCount) return false;
        const std::uint64_t value = isFlag ? 0 : std::strtoull(arguments[at], nullptr, 10);
        if (argument == "--no-failing-allocations")
            options.failingAllocations = false;
        else if (argument == "--no-journal")
            options.journal = false;
        else if (argument == "--pc")
            pc = value;
        else if (argument == "--seed")
            options.seed = value;
        else if (argument == "--count")
            last = value;
        else if (show = argument == "--show"; show)
            first = last = value;
        else
            return false;
    }
    options.seed = options.seed * compare::pcs.size() + pc;
    return pc < compare::pcs.size();
}

void runAll(const CommandLine& line) {
    for (std::uint64_t number = line.first; number <= line.last; ++number) {
        compare::RandomTransfer transfer(compare::pcs[line.pc], line.options, number);
        transfer.run();
        if (line.show) transfer.transcript().print();
        std::printf("%" PRIu64 " %016" PRIx64 " %s\n", number, transfer.transcript().hash(),
                    transfer.description().c_str());
        std::fflush(stdout);  // the lines before tell the transfer in which a build crashes
    }
}

}  // namespace

// The current folder is one of the program's own: PC file names are relative, and the same each time.
int main(int argumentCount, char** arguments) {
    CommandLine line;
    if (!line.read(argumentCount, arguments)) {
        std::fputs(Usage, stderr);
        return 2;
    }
    std::string folder = (std::filesystem::temp_directory_path() / "z7x_random_XXXXXX").string();
    int result = 2;
    try {
        if (!mkdtemp(folder.data())) throw std::runtime_error("no folder " + folder);
        std::filesystem::current_path(folder);
        runAll(line);
        result = 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "z7x_random_transfers: %s\n", error.what());
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return result;
}

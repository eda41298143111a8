#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "compare/random_transfer.h"

// Runs random transfers through the exports of one build of the library ($Z7X_LIBRARY) and prints a line for each: its
// number, a hash of all that can be seen of it from outside, and what it is. Builds that behave alike print the same;
// compare_libraries.sh runs two. The tests hold some thousand transfers against the hashes they are known to have.
namespace {

constexpr char Usage[] =
    "usage: z7x_random_transfers [--pc N] [--seed N] [--count N] [--show N] [--no-failing-allocations] [--no-journal]\n"
    "  --pc N                    the PC: 0 English, 1 German, 2 Japanese, 3 Korean, 4 and 5 Chinese\n"
    "  --show N                  all of transfer N\n"
    "  --no-failing-allocations  for builds that allocate in another order\n"
    "  --no-journal              for builds that use other services on the way to the same results\n"
    "  --record FILE             print only the transfers whose hash is another than in FILE, and end with 1 if there\n"
    "                            are any; with Z7X_REWRITE_TRANSFERS in the environment, write FILE\n";

struct CommandLine {
    compare::Options options;
    std::uint64_t pc = 0, first = 1, last = 1000;
    bool show = false;
    std::filesystem::path record;

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
        else if (argument == "--record")
            record = std::filesystem::absolute(arguments[at]);
        else if (show = argument == "--show"; show)
            first = last = value;
        else
            return false;
    }
    options.seed = options.seed * compare::pcs.size() + pc;
    return pc < compare::pcs.size();
}

// The hashes of transfers that were run before, in four digits each, a line for every twenty.
class Record {
public:
    explicit Record(const std::filesystem::path& path)
        : path_(path), isWritten_(std::getenv("Z7X_REWRITE_TRANSFERS") != nullptr) {
        if (isWritten_) return;
        std::ifstream file(path_);
        for (std::string line, hash; std::getline(file, line);)
            for (std::istringstream hashes(line.substr(line.find(':') + 1)); hashes >> hash;) hashes_.push_back(hash);
    }
    ~Record() {
        if (!isWritten_) return;
        std::ofstream file(path_);
        for (std::size_t at = 0; at < hashes_.size(); ++at)
            file << (at % PerLine ? "" : std::to_string(at + 1) + ":") << ' ' << hashes_[at]
                 << (at % PerLine == PerLine - 1 || at + 1 == hashes_.size() ? "\n" : "");
    }
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    // Of the next transfer.
    bool holds(std::uint64_t hash) {
        char digits[5];
        std::snprintf(digits, sizeof(digits), "%04" PRIx64, hash >> 48);
        if (isWritten_) hashes_.push_back(digits);
        return ++next_ <= hashes_.size() && hashes_[next_ - 1] == digits;
    }
    std::uint64_t count() const { return isWritten_ ? Recorded : hashes_.size(); }

private:
    static constexpr std::size_t PerLine = 20, Recorded = 1000;

    std::filesystem::path path_;
    bool isWritten_;
    std::vector<std::string> hashes_;
    std::size_t next_ = 0;
};

// Gives whether all were as recorded, where a record is given.
bool runAll(CommandLine line) {
    std::optional<Record> record;
    if (!line.record.empty()) line.last = record.emplace(line.record).count();
    bool allHeld = line.last > 0;
    for (std::uint64_t number = line.first; number <= line.last; ++number) {
        compare::RandomTransfer transfer(compare::pcs[line.pc], line.options, number);
        transfer.run();
        const std::uint64_t hash = transfer.transcript().hash();
        if (line.show) transfer.transcript().print();
        if (record && record->holds(hash)) continue;
        allHeld = false;
        std::printf("%" PRIu64 " %016" PRIx64 " %s\n", number, hash, transfer.description().c_str());
        std::fflush(stdout);  // the lines before tell the transfer in which a build crashes
    }
    return allHeld || !record;
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
        result = runAll(line) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "z7x_random_transfers: %s\n", error.what());
    }
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return result;
}

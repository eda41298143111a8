#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

// Runs a fuzz entry without a fuzzing engine: every file named, or in a folder named, as it is and then changed in a
// way that is the same each time.
//   z7xfuzz_NAME [-mutations=N] FILE|FOLDER ...
// The input that is running stands in a file: an input that ends the process is kept there, to be run again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace {

namespace files = std::filesystem;

std::string running;

void runInput(const std::string& input) {
    std::ofstream(running, std::ios::binary) << input;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

// One to four places are overwritten, cut out, repeated or filled in.
std::string mutated(std::string input, std::minstd_rand& random) {
    static constexpr char Interesting[] = "\xFF\x0E\x0F\x40\x1A\r\n\"\",,--1\x80\x7F";  // and a zero byte
    for (auto changes = random() % 4 + 1; changes > 0; --changes) {
        const std::size_t at = random() % (input.size() + 1);
        const std::size_t length = random() % 4 == 0 ? random() % 64 : 1;
        switch (random() % 4) {
            case 0:
                input.erase(at, length);
                break;
            case 1:
                input.insert(at, input.substr(random() % (input.size() + 1), length));
                break;
            case 2:
                input.insert(at, length, Interesting[random() % sizeof(Interesting)]);
                break;
            default:
                if (at < input.size()) input[at] = static_cast<char>(random());
        }
    }
    return input;
}

void runFile(const files::path& file, unsigned mutations) {
    std::ifstream stream(file, std::ios::binary);
    const std::string input{std::istreambuf_iterator<char>(stream), {}};
    runInput(input);
    std::minstd_rand random(1);
    for (unsigned number = 0; number < mutations; ++number) runInput(mutated(input, random));
}

}  // namespace

int main(int argumentCount, char** arguments) {
    running = files::absolute(arguments[0]).string() + ".input";
    unsigned mutations = 0;
    for (int at = 1; at < argumentCount; ++at) {
        const char* const argument = arguments[at];
        if (std::strncmp(argument, "-mutations=", 11) == 0) {
            mutations = static_cast<unsigned>(std::strtoul(argument + 11, nullptr, 10));
        } else if (files::is_directory(argument)) {
            for (const auto& entry : files::directory_iterator(argument)) runFile(entry.path(), mutations);
        } else {
            runFile(argument, mutations);
        }
    }
    files::remove(running);
}

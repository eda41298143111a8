#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string_view>

#include "reference/pages.h"

// The pages of docs/reference: z7x_reference SOURCES FOLDER writes them there; with --check in front it says which of
// the folder's are not what they would be written as.

namespace {

namespace files = std::filesystem;

std::string contentsOf(const files::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

int write(const std::vector<reference::Page>& pages, const files::path& folder) {
    files::create_directories(folder);
    for (const reference::Page& page : pages) {
        std::ofstream stream(folder / page.name, std::ios::binary);
        stream << page.text << std::flush;
        if (!stream) throw std::runtime_error((folder / page.name).string() + ": cannot be written");
    }
    return 0;
}

int check(const std::vector<reference::Page>& pages, const files::path& folder) {
    int outdated = 0;
    for (const reference::Page& page : pages) {
        if (contentsOf(folder / page.name) == page.text) continue;
        std::cerr << (folder / page.name).string()
                  << " is not what the code says; tools/rewrite_reference.sh writes it\n";
        outdated = 1;
    }
    return outdated;
}

}  // namespace

int main(int count, char** arguments) {
    const bool checks = count == 4 && std::string_view(arguments[1]) == "--check";
    if (count != 3 && !checks) {
        std::cerr << "usage: z7x_reference [--check] SOURCES FOLDER\n";
        return 2;
    }
    try {
        const std::vector<reference::Page> pages = reference::makePages(arguments[count - 2]);
        return checks ? check(pages, arguments[count - 1]) : write(pages, arguments[count - 1]);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}

#include <fstream>
#include <iostream>
#include <map>

#include "documents/command_words.h"

// Writes a document of the command line: its manual page, or its completion for a shell.

int main(int argc, char** argv) {
    const std::map<std::string, std::string (*)(const ProgramWords&)> documents = {
        {"manual", &manual}, {"bash", &bashCompletion}, {"zsh", &zshCompletion}};
    const auto document = argc == 3 ? documents.find(argv[1]) : documents.end();
    if (document == documents.end()) {
        std::cerr << "usage: " << argv[0] << " manual|bash|zsh FILE\n";
        return 2;
    }
    std::ofstream file(argv[2], std::ios::binary);
    file << document->second(programWords()) << std::flush;
    if (file) return 0;
    std::cerr << argv[2] << ": cannot be written\n";
    return 1;
}

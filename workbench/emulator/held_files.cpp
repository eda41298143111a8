#include "emulator/held_files.h"

#include <map>
#include <utility>
#include <vector>

#include "emulator/written_file.h"

namespace emulator {
namespace {

std::vector<std::unique_ptr<WrittenFile>> closedFiles;  // that wait for their release
std::map<std::string, std::uint64_t> amounts;

}  // namespace

Holding holding = Holding::Off;

void holdFiles() {
    resetHeldFiles();
    holding = Holding::On;
}

void releaseFilesWithNextWrite() {
    if (filesAreHeld()) holding = Holding::UntilNextWrite;
}

void releaseFiles() {
    holding = Holding::Off;
    for (const auto& file : std::exchange(closedFiles, {})) file->close();
}

void forgetHeldFiles() {
    holding = Holding::Off;
    closedFiles.clear();
}

void closeFile(std::unique_ptr<WrittenFile> file) {
    if (filesAreHeld())
        closedFiles.push_back(std::move(file));
    else
        file->close();
}

void accountFor(const std::string& name, std::uint64_t bytes) { amounts[name] = bytes; }

std::optional<std::uint64_t> bytesWritten(const std::string& pcName) {
    const auto found = amounts.find(pcName);
    return found == amounts.end() ? std::nullopt : std::optional(found->second);
}

void resetHeldFiles() {
    forgetHeldFiles();
    amounts.clear();
}

}  // namespace emulator

#include "emulator/standard_streams.h"

#include <utility>

#include "emulator/emulator.h"

namespace emulator {
namespace {

std::string inputFile;
OutputEncoder outputEncoder;

}  // namespace

void setStandardInputFile(const std::string& path) { inputFile = path; }
void setOutputEncoder(OutputEncoder encoder) { outputEncoder = std::move(encoder); }

const std::string& standardInputFile() { return inputFile; }

std::string asStandardOutput(std::string_view bytes) {
    return outputEncoder ? outputEncoder(bytes) : std::string(bytes);
}

void resetStandardStreams() {
    inputFile.clear();
    outputEncoder = nullptr;
}

}  // namespace emulator

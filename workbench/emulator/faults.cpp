#include "emulator/faults.h"

namespace emulator {
namespace {

Faults wanted;
std::uint64_t allocationsSeen = 0;
std::int64_t bytesSeen = 0;

}  // namespace

const Faults& faults() { return wanted; }

void setFaults(const Faults& faults) {
    wanted = faults;
    allocationsSeen = 0;
    bytesSeen = 0;
}

bool allocationAllowed() {
    if (wanted.failAllocation == 0) return true;
    ++allocationsSeen;
    if (wanted.failAllAfter) return allocationsSeen < wanted.failAllocation;
    return allocationsSeen != wanted.failAllocation;
}

bool writeAllowed(std::uint32_t length) {
    if (wanted.failWriteAfterBytes < 0) return true;
    if (bytesSeen + length > wanted.failWriteAfterBytes) return false;
    bytesSeen += length;
    return true;
}

}  // namespace emulator

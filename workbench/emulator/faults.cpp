#include "emulator/faults.h"

namespace emulator {
namespace {

std::uint64_t allocationsSeen = 0;
std::int64_t bytesSeen = 0;

}  // namespace

Faults wantedFaults;

void setFaults(const Faults& faults) {
    wantedFaults = faults;
    allocationsSeen = 0;
    bytesSeen = 0;
}

bool countAllocation() {
    ++allocationsSeen;
    if (wantedFaults.failAllAfter) return allocationsSeen < wantedFaults.failAllocation;
    return allocationsSeen != wantedFaults.failAllocation;
}

bool countWrite(std::uint32_t length) {
    if (bytesSeen + length > wantedFaults.failWriteAfterBytes) return false;
    bytesSeen += length;
    return true;
}

}  // namespace emulator

#include "bench/measured_transfer.h"

namespace bench {
namespace {

int failureCount = 0;

std::string memoryGrowth(std::uint64_t from, std::uint64_t to) {
    if (from == to) return {};
    return "the memory in use grew from " + std::to_string(from) + " to " + std::to_string(to) + " bytes";
}

}  // namespace

int failures() { return failureCount; }

// The library's own way to skip a measurement does not get along with the fit over the ones before it.
void reportFailure(benchmark::State& state, const std::string& failure) {
    ++failureCount;
    state.SetLabel("FAILED: " + failure);
}

void measureTransfers(benchmark::State& state, TransferSession& session, Direction direction,
                      std::uint64_t& peakOfShortest) {
    const auto count = static_cast<std::uint32_t>(state.range(0));
    std::string failure = session.transfer(direction, count);  // binds the provider, warms the caches
    for ([[maybe_unused]] const auto iteration : state)
        if (failure.empty()) failure = session.transfer(direction, count);
    const std::uint64_t peak = session.peakBytes();
    if (peakOfShortest == 0) peakOfShortest = peak;
    if (failure.empty()) failure = memoryGrowth(peakOfShortest, peak);
    state.SetComplexityN(state.range(0));
    state.counters["peakBytes"] = static_cast<double>(peak);
    if (!failure.empty()) return reportFailure(state, failure);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

}  // namespace bench

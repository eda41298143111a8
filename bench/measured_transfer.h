#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "bench/transfer_session.h"
#include "settings/pc_file_types.h"

namespace bench {

// From a thousand to a million records; the fit says whether the time is proportional to them.
inline void asManyRecords(benchmark::internal::Benchmark* transfer) {
    constexpr std::int64_t Fewest = 1'000, Most = 1'000'000;
    transfer->RangeMultiplier(10)->Range(Fewest, Most)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

// Repeats transfers of state.range(0) records. The memory that one needs must be that of the shortest of its kind:
// `peakOfShortest` keeps it. What goes wrong stands behind the line of the measurement, and in failures().
void measureTransfers(benchmark::State& state, TransferSession& session, Direction direction,
                      std::uint64_t& peakOfShortest);

void reportFailure(benchmark::State& state, const std::string& failure);
int failures();

}  // namespace bench

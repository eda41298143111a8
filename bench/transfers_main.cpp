#include <benchmark/benchmark.h>

#include "bench/measured_transfer.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
    return bench::failures() == 0 ? 0 : 1;
}

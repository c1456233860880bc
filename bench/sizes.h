#pragma once

#include <benchmark/benchmark.h>

namespace kvopt::bench {

/// What all benchmarks have in common: they run for 10, 100, 1,000 and 10,000 factors, and tell how
/// their time grows with that number. Each of them calls state.SetComplexityN().
inline void ForEachSize(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(10, 10'000)->Complexity();
    benchmark->Unit(benchmark::kMicrosecond);
}

/// The same, timed by the clock on the wall, which also sees the disk.
inline void ForEachSizeByTheClock(benchmark::internal::Benchmark* benchmark) {
    ForEachSize(benchmark);
    benchmark->UseRealTime();
}

}  // namespace kvopt::bench

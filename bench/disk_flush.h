#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>

namespace kvopt::bench {

enum class Flush { ToDisk, Skipped };

/// With Flush::Skipped, what asks the system to flush a file to disk is told at once that it was
/// done, as long as this object lives: whoever asks, this library or another one in the process.
class FlushSwitch {
public:
    explicit FlushSwitch(Flush flush);
    FlushSwitch(const FlushSwitch&) = delete;
    FlushSwitch& operator=(const FlushSwitch&) = delete;
    ~FlushSwitch();

    /// How often a flush was really made since this object was made.
    std::int64_t FlushesMade() const;

private:
    bool before_;
    std::int64_t start_;
};

/// Adds the column "flushes" to a row: how many were made for each iteration.
void CountFlushes(benchmark::State& state, const FlushSwitch& flushSwitch);

}  // namespace kvopt::bench

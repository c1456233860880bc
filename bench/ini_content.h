#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/bench_files.h"
#include "bench/disk_flush.h"
#include "bench/sizes.h"

/// \file
/// The same ini file through several libraries. A `Store` has two static functions, which begin
/// without anything of the file in memory:
///     void Write(const std::string& path, const IniContent& content);
///     double Read(const std::string& path, const IniContent& content);
/// Read() fetches every key and gives what SumOf() gives.

namespace kvopt::bench {

struct IniSection {
    std::string name;
    double low;
    double high;
    int setting;
    std::string unit;
};
using IniContent = std::vector<IniSection>;

/// So many sections of four keys.
IniContent IniContentOf(int sections);

/// What tells that everything was read.
inline double SumOf(double low, double high, int setting, const std::string& unit) {
    return low + high + setting + static_cast<double>(unit.size());
}
double SumOf(const IniContent& content);

template <class Store>
void WriteIniFile(benchmark::State& state, Flush flush) {
    const IniContent content = IniContentOf(static_cast<int>(state.range(0)));
    BenchFolder folder;
    const FlushSwitch flushSwitch(flush);
    std::string path;
    for (auto _ : state) {
        state.PauseTiming();
        path = folder.FreshPath();
        state.ResumeTiming();
        Store::Write(path, content);
    }
    if (Store::Read(path, content) != SumOf(content)) {
        state.SkipWithError("the file does not hold what was written");
    }
    CountFlushes(state, flushSwitch);
    state.SetComplexityN(state.range(0));
}

template <class Store>
void ReadIniFile(benchmark::State& state) {
    const IniContent content = IniContentOf(static_cast<int>(state.range(0)));
    const BenchFolder folder;
    const std::string path = folder.Path("read.ini");
    Store::Write(path, content);
    const double expected = SumOf(content);
    auto time = std::filesystem::last_write_time(path);
    for (auto _ : state) {
        // A library that remembers files reads one that has changed afresh.
        state.PauseTiming();
        time += std::chrono::seconds(1);
        std::filesystem::last_write_time(path, time);
        state.ResumeTiming();
        if (Store::Read(path, content) != expected) {
            state.SkipWithError("not everything was read");
            break;
        }
    }
    state.SetComplexityN(state.range(0));
}

/// Adds the three benchmarks of a store to the run, under this name. Gives true.
template <class Store>
bool AddIniStore(const std::string& name) {
    const auto add = [](const std::string& title, auto run) {
        ForEachSizeByTheClock(benchmark::RegisterBenchmark(title.c_str(), run));
    };
    add("WriteIniFile/flushed/" + name,
        [](benchmark::State& state) { WriteIniFile<Store>(state, Flush::ToDisk); });
    add("WriteIniFile/unflushed/" + name,
        [](benchmark::State& state) { WriteIniFile<Store>(state, Flush::Skipped); });
    add("ReadIniFile/" + name, [](benchmark::State& state) { ReadIniFile<Store>(state); });
    return true;
}

}  // namespace kvopt::bench

#pragma once

#include <benchmark/benchmark.h>

#include <string>

#include "bench/bench_files.h"
#include "bench/disk_flush.h"
#include "bench/sizes.h"

/// \file
/// The tree of a saved plot through several libraries. A `Library` names the type `Tree` of its
/// trees and has five static functions:
///     Tree Make(int factors);
///     std::string Print(const Tree& tree);
///     Tree Parse(const std::string& text);
///     void Save(Tree& tree, const std::string& path);
///     Tree Load(const std::string& path);
/// Each of the last four throws where it fails.

namespace kvopt::bench {

template <class Library>
void PrintTree(benchmark::State& state) {
    const auto tree = Library::Make(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Library::Print(tree));
    }
    state.SetComplexityN(state.range(0));
}

template <class Library>
void ParseTree(benchmark::State& state) {
    const std::string text = Library::Print(Library::Make(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Library::Parse(text));
    }
    state.SetComplexityN(state.range(0));
}

template <class Library>
void SaveTree(benchmark::State& state, Flush flush) {
    auto tree = Library::Make(static_cast<int>(state.range(0)));
    BenchFolder folder;
    const FlushSwitch flushSwitch(flush);
    for (auto _ : state) {
        state.PauseTiming();
        const std::string path = folder.FreshPath();
        state.ResumeTiming();
        Library::Save(tree, path);
    }
    CountFlushes(state, flushSwitch);
    state.SetComplexityN(state.range(0));
}

template <class Library>
void LoadTree(benchmark::State& state) {
    const BenchFolder folder;
    const std::string path = folder.Path("tree");
    auto tree = Library::Make(static_cast<int>(state.range(0)));
    Library::Save(tree, path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Library::Load(path));
    }
    state.SetComplexityN(state.range(0));
}

/// Adds the benchmarks of a library to the run, under this name. Gives true.
template <class Library>
bool AddTreeLibrary(const std::string& name) {
    const auto add = [&name](const std::string& title, auto sizes, auto run) {
        sizes(benchmark::RegisterBenchmark((title + "/" + name).c_str(), run));
    };
    add("PrintTree", ForEachSize, PrintTree<Library>);
    add("ParseTree", ForEachSize, ParseTree<Library>);
    add("SaveTree/flushed", ForEachSizeByTheClock,
        [](benchmark::State& state) { SaveTree<Library>(state, Flush::ToDisk); });
    add("SaveTree/unflushed", ForEachSizeByTheClock,
        [](benchmark::State& state) { SaveTree<Library>(state, Flush::Skipped); });
    add("LoadTree", ForEachSizeByTheClock, LoadTree<Library>);
    return true;
}

}  // namespace kvopt::bench

// The tree of a saved plot to its text and back, beside bare nlohmann-json on the same text.

#include "bench/saved_tree.h"

#include <nlohmann/json.hpp>

#include "bench/bench_study.h"
#include "bench/sizes.h"

namespace kvopt::bench {

ConfigurationStore SavedTreeOf(int factors) {
    ConfigurationStore store;
    PlotOf(StudyOf(factors))->WriteSection(store.Root().get());
    return store;
}

namespace {

void PrintTree(benchmark::State& state) {
    const ConfigurationStore tree = SavedTreeOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(tree.Text());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PrintTree)->Name("PrintTree/kvopt")->Apply(ForEachSize);

void PrintTreeWithNlohmann(benchmark::State& state) {
    const auto tree = nlohmann::json::parse(SavedTreeOf(static_cast<int>(state.range(0))).Text());
    for (auto _ : state) {
        benchmark::DoNotOptimize(tree.dump(1));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PrintTreeWithNlohmann)->Name("PrintTree/nlohmann-json")->Apply(ForEachSize);

void ParseTree(benchmark::State& state) {
    const std::string text = SavedTreeOf(static_cast<int>(state.range(0))).Text();
    for (auto _ : state) {
        benchmark::DoNotOptimize(ConfigurationStore::Parse(text, "plot.json"));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ParseTree)->Name("ParseTree/kvopt")->Apply(ForEachSize);

void ParseTreeWithNlohmann(benchmark::State& state) {
    const std::string text = SavedTreeOf(static_cast<int>(state.range(0))).Text();
    for (auto _ : state) {
        benchmark::DoNotOptimize(nlohmann::json::parse(text));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ParseTreeWithNlohmann)->Name("ParseTree/nlohmann-json")->Apply(ForEachSize);

}  // namespace
}  // namespace kvopt::bench

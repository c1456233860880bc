// A saved plot, from the argument object to the file and back.

#include "bench/bench_files.h"
#include "bench/bench_study.h"
#include "bench/disk_flush.h"
#include "bench/sizes.h"
#include "kvopt/stores.h"

namespace kvopt::bench {
namespace {

void SavePlot(const ContourPlotData& plot, const std::string& path) {
    ConfigurationStore store;
    plot.WriteSection(store.Root().get());
    store.Save(path);
}

void WriteSavedPlot(benchmark::State& state, Flush flush) {
    BenchFolder folder;
    const auto plot = PlotOf(StudyOf(static_cast<int>(state.range(0))));
    const FlushSwitch flushSwitch(flush);
    for (auto _ : state) {
        state.PauseTiming();
        const std::string path = folder.FreshPath();
        state.ResumeTiming();
        SavePlot(*plot, path);
    }
    CountFlushes(state, flushSwitch);
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(WriteSavedPlot, flushed, Flush::ToDisk)->Apply(ForEachSizeByTheClock);
BENCHMARK_CAPTURE(WriteSavedPlot, unflushed, Flush::Skipped)->Apply(ForEachSizeByTheClock);

void ReadSavedPlot(benchmark::State& state) {
    const BenchFolder folder;
    const std::string path = folder.Path("plot.json");
    const auto plot = PlotOf(StudyOf(static_cast<int>(state.range(0))));
    SavePlot(*plot, path);
    for (auto _ : state) {
        const ConfigurationStore store = ConfigurationStore::Load(path);
        if (!plot->ReadSection(store.Root().get())) {
            state.SkipWithError("the plot was not read");
            break;
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ReadSavedPlot)->Apply(ForEachSizeByTheClock);

}  // namespace
}  // namespace kvopt::bench

// The argument object: made, remembered in the ini file, and made from what was remembered.

#include "bench/bench_files.h"
#include "bench/bench_study.h"
#include "bench/disk_flush.h"
#include "bench/sizes.h"

namespace kvopt::bench {
namespace {

void BuildContourPlotData(benchmark::State& state) {
    ReferenceStudy& study = StudyOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(PlotOf(study));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BuildContourPlotData)->Apply(ForEachSize);

void WritePlotSettings(benchmark::State& state, Flush flush) {
    BenchFolder folder;
    ReferenceStudy& study = StudyOf(static_cast<int>(state.range(0)));
    const FlushSwitch flushSwitch(flush);
    for (auto _ : state) {
        state.PauseTiming();
        auto plot = PlotOf(study, folder.FreshPath());
        state.ResumeTiming();
        plot->WriteSettings(ContourPlotData::ContourAxis2D, ContourPlotData::Process2D, 2, true);
        state.PauseTiming();
        plot.reset();
        state.ResumeTiming();
    }
    CountFlushes(state, flushSwitch);
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(WritePlotSettings, flushed, Flush::ToDisk)->Apply(ForEachSizeByTheClock);
BENCHMARK_CAPTURE(WritePlotSettings, unflushed, Flush::Skipped)->Apply(ForEachSizeByTheClock);

void BuildContourPlotDataFromSettings(benchmark::State& state) {
    const BenchFolder folder;
    const std::string path = folder.Path("study.ini");
    ReferenceStudy& study = StudyOf(static_cast<int>(state.range(0)));
    PlotOf(study, path)
        ->WriteSettings(ContourPlotData::ContourAxis2D, ContourPlotData::Process2D, 2, true);
    for (auto _ : state) {
        benchmark::DoNotOptimize(PlotOf(study, path));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BuildContourPlotDataFromSettings)->Apply(ForEachSizeByTheClock);

}  // namespace
}  // namespace kvopt::bench

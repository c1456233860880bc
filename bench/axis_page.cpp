// The axis page by itself, without a front end.

#include <memory>

#include "bench/bench_study.h"
#include "bench/make_axis_page.h"
#include "bench/sizes.h"
#include "bench/slider_drag.h"

namespace kvopt::bench {
namespace {

std::unique_ptr<Contour2DAxisPage> OpenPage(ReferenceStudy& study, ContourPlotData& plot) {
    auto page = MakeAxisPage(study, plot);
    page->Create();
    page->OnSetActive();
    return page;
}

/// A page that is open, with what it edits.
struct AxisPageInUse {
    explicit AxisPageInUse(std::int64_t factors)
        : study(StudyOf(static_cast<int>(factors))),
          plot(PlotOf(study)),
          page(OpenPage(study, *plot)) {}

    ReferenceStudy& study;
    std::unique_ptr<ContourPlotData> plot;
    std::unique_ptr<Contour2DAxisPage> page;
};

void OpenAxisPage(benchmark::State& state) {
    ReferenceStudy& study = StudyOf(static_cast<int>(state.range(0)));
    const auto plot = PlotOf(study);
    for (auto _ : state) {
        benchmark::DoNotOptimize(OpenPage(study, *plot));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(OpenAxisPage)->Apply(ForEachSize);

void ChangeAxis(benchmark::State& state) {
    const AxisPageInUse use(state.range(0));
    for (auto _ : state) {
        if (!PickAnotherFactor(*use.page)) {
            state.SkipWithError("the list took no other factor");
            break;
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ChangeAxis)->Apply(ForEachSize);

void SliderStep(benchmark::State& state) {
    const AxisPageInUse use(state.range(0));
    SliderDrag drag(use.page->Grid());
    const std::string before = drag.Value();
    for (auto _ : state) {
        drag.Step();
    }
    if (drag.Value() == before) {
        state.SkipWithError("the slider did not follow");
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(SliderStep)->Apply(ForEachSize);

void CheckInterfaceValues(benchmark::State& state) {
    const AxisPageInUse use(state.range(0));
    for (auto _ : state) {
        if (!use.page->Grid().CheckInterfaceValues(-1, -1, nullptr)) {
            state.SkipWithError("the values were refused");
            break;
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(CheckInterfaceValues)->Apply(ForEachSize);

}  // namespace
}  // namespace kvopt::bench

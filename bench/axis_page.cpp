// The axis page by itself, without a front end.

#include <memory>

#include "bench/bench_study.h"
#include "bench/make_axis_page.h"
#include "bench/sizes.h"
#include "kvopt/constants.h"
#include "kvopt/platform.h"
#include "kvopt/scripted.h"

namespace kvopt::bench {
namespace {

constexpr int kSecondAxisList = 6037;
constexpr int kSliderColumn = 3;

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
    auto& list = *use.page->Item<CComboBox>(kSecondAxisList);
    int index = list.GetCount() - 1;
    for (auto _ : state) {
        if (!list.UserPick(index)) {
            state.SkipWithError("the list took no other factor");
            break;
        }
        index = index == list.GetCount() - 1 ? index - 1 : list.GetCount() - 1;
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ChangeAxis)->Apply(ForEachSize);

void SliderStep(benchmark::State& state) {
    const AxisPageInUse use(state.range(0));
    VWSConstantInterface& grid = use.page->Grid();
    const CPoint cell{kSliderColumn, 1};
    const CRect rect = NominalCellRect(grid, cell);
    const CellSlider slider = SliderOfCell(grid, cell).value();
    const CPoint places[] = {CellPixelOfValue(grid, cell, slider, 40),
                             CellPixelOfValue(grid, cell, slider, 60)};
    const CPoint thumb = CellPixelOfValue(grid, cell, slider, 50);
    grid.MouseMove(thumb, cell, rect);
    grid.LButtonDown(thumb, cell);
    const std::string before = grid.GetCellText(kSliderColumn - 1, 1);
    std::size_t next = 0;
    for (auto _ : state) {
        grid.MouseMove(places[next], cell, rect);
        next = 1 - next;
    }
    if (grid.GetCellText(kSliderColumn - 1, 1) == before) {
        state.SkipWithError("the slider did not follow");
    }
    grid.LButtonUp(thumb, cell);
    Desktop::Instance().StopTimer(&grid);
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

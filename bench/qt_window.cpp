// Opening a page in a real window, offscreen, beside a dialog of the same widgets made by hand. The
// time is that from the call to the end of the first painting. Then changes in the window of the
// axis page, from what the user does to the end of the painting that shows it.

#include <functional>

#include "bench/bare_window.h"
#include "bench/bench_study.h"
#include "bench/first_paint.h"
#include "bench/make_axis_page.h"
#include "bench/sizes.h"
#include "bench/slider_drag.h"
#include "kvopt/platform.h"
#include "kvopt/qt.h"
#include "kvopt/sheets.h"

namespace kvopt::bench {
namespace {

/// Of a page's opening, again and again.
void TimeFirstPaint(benchmark::State& state, const std::function<void()>& open) {
    for (auto _ : state) {
        const double seconds = SecondsToFirstPaint(open);
        if (seconds <= 0) {
            state.SkipWithError("nothing was painted");
            break;
        }
        state.SetIterationTime(seconds);
    }
    state.SetComplexityN(state.range(0));
}

void ForEachSizeTimedByHand(benchmark::internal::Benchmark* benchmark) {
    ForEachSize(benchmark);
    benchmark->UseManualTime();
}

/// Runs a wizard of one page.
void RunPage(KvPropertyPage& page) {
    KvPropertySheet sheet(L"Contour Plot", nullptr, 0);
    sheet.SetWizardMode();
    sheet.AddPage(&page);
    sheet.DoModal();
}

void TimePage(benchmark::State& state,
              const std::function<void(ReferenceStudy&, ContourPlotData&)>& open) {
    ReferenceStudy& study = StudyOf(static_cast<int>(state.range(0)));
    const auto plot = PlotOf(study);
    QtDesktop desktop;
    Desktop* const before = Desktop::Install(&desktop);
    TimeFirstPaint(state, [&] { open(study, *plot); });
    Desktop::Install(before);
}

void PaintFirstPage(benchmark::State& state) {
    TimePage(state, [](ReferenceStudy& study, ContourPlotData& plot) {
        ContourPage page(&study, plot, nullptr, false);
        RunPage(page);
    });
}
BENCHMARK(PaintFirstPage)->Name("PaintFirstPage/kvopt")->Apply(ForEachSizeTimedByHand);

void PaintBareFirstPage(benchmark::State& state) {
    const std::vector<std::string> names = ResponseNames(10);
    TimeFirstPaint(state, [&] { RunBareFirstPage(names); });
}
BENCHMARK(PaintBareFirstPage)->Name("PaintFirstPage/bare_Qt")->Apply(ForEachSizeTimedByHand);

void PaintAxisPage(benchmark::State& state) {
    TimePage(state, [](ReferenceStudy& study, ContourPlotData& plot) {
        RunPage(*MakeAxisPage(study, plot));
    });
}
BENCHMARK(PaintAxisPage)->Name("PaintAxisPage/kvopt")->Apply(ForEachSizeTimedByHand);

void PaintBareAxisPage(benchmark::State& state) {
    const std::vector<std::string> names = FactorNames(static_cast<int>(state.range(0)));
    TimeFirstPaint(state, [&] { RunBareAxisPage(names); });
}
BENCHMARK(PaintBareAxisPage)->Name("PaintAxisPage/bare_Qt")->Apply(ForEachSizeTimedByHand);

/// Of one change after the other in the window of an axis page; `next` makes it.
void TimeChanges(benchmark::State& state,
                 const std::function<std::function<void()>(Contour2DAxisPage&)>& prepare) {
    ReferenceStudy& study = StudyOf(static_cast<int>(state.range(0)));
    const auto plot = PlotOf(study);
    const auto page = MakeAxisPage(study, *plot);
    QtDesktop desktop;
    Desktop* const before = Desktop::Install(&desktop);
    RunPainted([&] { RunPage(*page); },
               [&] {
                   const std::function<void()> next = prepare(*page);
                   for (auto _ : state) {
                       state.SetIterationTime(SecondsToNextPaint(next));
                   }
               });
    Desktop::Install(before);
    state.SetComplexityN(state.range(0));
}

void ChangeAxisInWindow(benchmark::State& state) {
    TimeChanges(state,
                [](Contour2DAxisPage& page) { return [&page] { PickAnotherFactor(page); }; });
}
BENCHMARK(ChangeAxisInWindow)->Apply(ForEachSizeTimedByHand);

void SliderStepInWindow(benchmark::State& state) {
    TimeChanges(state, [](Contour2DAxisPage& page) {
        return [drag = std::make_shared<SliderDrag>(page.Grid())] { drag->Step(); };
    });
}
BENCHMARK(SliderStepInWindow)->Apply(ForEachSizeTimedByHand);

}  // namespace
}  // namespace kvopt::bench

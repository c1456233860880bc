// The contour wizard on the scripted desktop, up to one of its pages and cancelled there.

#include <string>

#include "bench/bench_study.h"
#include "bench/sizes.h"
#include "kvopt/scripted.h"
#include "kvopt/sheets.h"

namespace kvopt::bench {
namespace {

void OpenWizard(benchmark::State& state, const char* script) {
    ReferenceStudy& study = StudyOf(static_cast<int>(state.range(0)));
    const auto plot = PlotOf(study);
    for (auto _ : state) {
        state.PauseTiming();
        ScriptedDesktop desktop{std::string_view(script)};
        Desktop* const before = Desktop::Install(&desktop);
        state.ResumeTiming();
        ShowContourWizard(nullptr, *plot, &study, false, false);
        state.PauseTiming();
        Desktop::Install(before);
        const bool wentWell = desktop.Verify().empty();
        state.ResumeTiming();
        if (!wentWell) {
            state.SkipWithError(desktop.Verify().front().c_str());
            break;
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(OpenWizard, first_page, "cancel")->Apply(ForEachSize);
BENCHMARK_CAPTURE(OpenWizard, axis_page, "next\nexpect page 6160\ncancel")->Apply(ForEachSize);

}  // namespace
}  // namespace kvopt::bench

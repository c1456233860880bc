// The two lists of responses, brought back in line with a study of as many responses as factors.

#include "bench/bench_study.h"
#include "bench/sizes.h"
#include "kvopt/selection.h"

namespace kvopt::bench {
namespace {

void AssertSelectedResponses(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    SelectResponses responses(&StudyOf(count, count), false);
    responses.SetResponses(ResponseNames(count / 2));
    for (auto _ : state) {
        responses.AssertSelectedResponses(true);
    }
    if (responses.GetSelectedResponses().size() != static_cast<std::size_t>(count / 2)) {
        state.SkipWithError("a response was lost");
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(AssertSelectedResponses)->Apply(ForEachSize);

}  // namespace
}  // namespace kvopt::bench

#include <benchmark/benchmark.h>

#include <memory>

#include "kvopt/stores.h"

#ifdef KVOPT_BENCH_WITH_QT
#include <QApplication>
#endif

int main(int count, char** words) {
    // What is remembered for the person who runs this is neither read nor changed.
    kvopt::UserProfile::Install(
        std::make_shared<kvopt::UserProfile>(std::make_unique<kvopt::IniFileSection>()));
#ifdef KVOPT_BENCH_WITH_QT
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(count, words);
#endif
    benchmark::Initialize(&count, words);
    if (benchmark::ReportUnrecognizedArguments(count, words)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

#pragma once

#include <memory>

#include "bench/bench_study.h"
#include "kvopt/axes.h"

namespace kvopt::bench {

/// The axis page of a contour plot as the wizard makes it; it has no window yet.
std::unique_ptr<Contour2DAxisPage> MakeAxisPage(ReferenceStudy& study, ContourPlotData& plot);

}  // namespace kvopt::bench

#pragma once

#include <memory>

#include "bench/bench_study.h"
#include "kvopt/axes.h"

namespace kvopt::bench {

/// The axis page of a contour plot as the wizard makes it; it has no window yet.
std::unique_ptr<Contour2DAxisPage> MakeAxisPage(ReferenceStudy& study, ContourPlotData& plot);

/// The user picks for the second axis of an open page the last factor and the last but one by
/// turns. False when the list takes none.
bool PickAnotherFactor(Contour2DAxisPage& page);

}  // namespace kvopt::bench

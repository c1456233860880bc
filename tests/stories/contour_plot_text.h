#pragma once

#include <string>

#include "kvopt/plotargs.h"

namespace kvopt::test {

/// What makes the plot of a contour argument object, a line each, as far as a saved plot brings it
/// back: it leaves out the lock of the levels, and where among its settings a text constant stands.
std::string ContourPlotText(const ContourPlotData& data);

}  // namespace kvopt::test

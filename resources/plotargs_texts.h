#pragma once

/// \file
/// Texts of the plot arguments: what the plots are called.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kPlotDesignRegion{"Design Region Plot"};
inline constexpr PlainText kPlotResponseContour{"Response Contour Plot"};
inline constexpr PlainText kPlotResponseSurface{"Response Surface Plot"};
inline constexpr PlainText kPlotDesirability{"Desirability Plot"};
inline constexpr PlainText kPlotDesignSpace{"Design Space Plot"};

}  // namespace kvopt::texts

#pragma once

/// \file
/// Texts of the statistical options pages.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kLevelsNoLevel{"No confidence level"};
inline constexpr PlainText kLevelsNoInterval{"None"};
inline constexpr PlainText kLevelsSafetyMargins{
    "The simulation will generate points with variance based on the selected interval estimate. "
    "This will in turn generate the required safety margins that correspond to the defined "
    "probability limit of the ideal average prediction. The safety margin increases from "
    "Confidence to Prediction (and in general) to Tolerance."};

}  // namespace kvopt::texts

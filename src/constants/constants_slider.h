#pragma once

namespace kvopt {

/// Share of a slider cell's width that stays free at each end.
inline constexpr float kSliderMargin = 0.07F;
/// How near the thumb the pointer must be to take it, as a share of the factor's range.
inline constexpr float kThumbTolerance = 0.1F;
/// How long a drag must pause before the plot follows.
inline constexpr unsigned kSliderPauseMilliseconds = 100;

}  // namespace kvopt

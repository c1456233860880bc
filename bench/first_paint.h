#pragma once

#include <functional>

namespace kvopt::bench {

/// Calls `open`, which runs a modal window, closes that window when it has been painted for the
/// first time, and gives the seconds from the call to the end of that painting.
double SecondsToFirstPaint(const std::function<void()>& open);

}  // namespace kvopt::bench

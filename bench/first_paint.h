#pragma once

#include <functional>

namespace kvopt::bench {

/// Calls `open`, which runs a modal window, closes that window when it has been painted for the
/// first time, and gives the seconds from the call to the end of that painting.
double SecondsToFirstPaint(const std::function<void()>& open);

/// Calls `open`, which runs a modal window, calls `then` when it has been painted for the first
/// time, and then closes it.
void RunPainted(const std::function<void()>& open, const std::function<void()>& then);

/// Within RunPainted(): calls `change` and waits until the window has been painted again. Gives the
/// seconds from the call to the end of that painting.
double SecondsToNextPaint(const std::function<void()>& change);

}  // namespace kvopt::bench

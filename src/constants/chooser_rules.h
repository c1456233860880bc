#pragma once

#include <functional>
#include <string>

namespace kvopt {

class Investigation;
class Variables;

/// The axes of a plot as a chooser asks for them, wherever they are kept. Axes are one-based.
struct AxesInQuestion {
    int count = 0;
    std::function<bool(int axis, const std::string& name)> isFactor;
    std::function<bool(int axis)> isUsed;
    std::function<std::string(int axis)> nameOf;
};

/// Contour plots: whether the grid leaves the factor out. `investigation` null does not ask the
/// models.
bool SkipsContourFactor(const Variables& variables, const Investigation* investigation,
                        const AxesInQuestion& axes, const std::string& name);

/// Prediction plots: the same question; `filter` false does not ask the models.
bool SkipsPredictedFactor(const Investigation& investigation, bool filter,
                          const AxesInQuestion& axes, const std::string& name);

}  // namespace kvopt

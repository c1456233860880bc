#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/constants/constants_chooser.h"
#include "kvopt/export.h"

namespace kvopt {

class AxisInfo;
class Investigation;
class Variables;

/// The rule of contour plots on a finished set of axes: a factor on an axis has no row, nor has one
/// that the models leave out; a factor that is held constant in the study always has. Owns nothing
/// of what it is given; `investigation` null means that the models are not asked. Axes are
/// one-based, element 0 of the vector stays empty.
class KVOPT_EXPORT ContourConstantsChooser : public ConstantsChooser {
public:
    ContourConstantsChooser(const Variables* variables,
                            const std::vector<std::shared_ptr<AxisInfo>>& axes, int axisCount,
                            const Investigation* investigation);

    bool SkipFactor(const std::string& name) const override;

private:
    const Variables* variables_;
    const std::vector<std::shared_ptr<AxisInfo>>* axes_;
    int axisCount_;
    const Investigation* investigation_;
};

}  // namespace kvopt

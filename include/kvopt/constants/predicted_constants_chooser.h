#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/constants/constants_chooser.h"
#include "kvopt/export.h"

namespace kvopt {

class AxisInfo;
class Investigation;

/// The rule of prediction plots on a finished set of axes. With two or more used axes the axis
/// factors keep their rows; `filter` false means that the models are not asked. Owns nothing of
/// what it is given. Axes are one-based, element 0 of the vector stays empty.
class KVOPT_EXPORT PredictedConstantsChooser : public ConstantsChooser {
public:
    PredictedConstantsChooser(const Investigation* investigation,
                              const std::vector<std::shared_ptr<AxisInfo>>& axes, int axisCount,
                              bool filter);

    bool SkipFactor(const std::string& name) const override;

private:
    const Investigation* investigation_;
    const std::vector<std::shared_ptr<AxisInfo>>* axes_;
    int axisCount_;
    bool filter_;
};

}  // namespace kvopt

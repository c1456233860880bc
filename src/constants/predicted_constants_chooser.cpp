#include "kvopt/constants/predicted_constants_chooser.h"

#include "constants/chooser_axes.h"
#include "constants/chooser_rules.h"
#include "kvopt/study.h"

namespace kvopt {

PredictedConstantsChooser::PredictedConstantsChooser(
    const Investigation* investigation, const std::vector<std::shared_ptr<AxisInfo>>& axes,
    int axisCount, bool filter)
    : investigation_(investigation), axes_(&axes), axisCount_(axisCount), filter_(filter) {}

bool PredictedConstantsChooser::SkipFactor(const std::string& name) const {
    return SkipsPredictedFactor(*investigation_, filter_, AxesOf(*axes_, axisCount_), name);
}

}  // namespace kvopt

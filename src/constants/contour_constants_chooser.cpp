#include "kvopt/constants/contour_constants_chooser.h"

#include "constants/chooser_axes.h"
#include "constants/chooser_rules.h"
#include "kvopt/study.h"

namespace kvopt {

ContourConstantsChooser::ContourConstantsChooser(const Variables* variables,
                                                 const std::vector<std::shared_ptr<AxisInfo>>& axes,
                                                 int axisCount, const Investigation* investigation)
    : variables_(variables), axes_(&axes), axisCount_(axisCount), investigation_(investigation) {}

bool ContourConstantsChooser::SkipFactor(const std::string& name) const {
    return SkipsContourFactor(*variables_, investigation_, AxesOf(*axes_, axisCount_), name);
}

}  // namespace kvopt

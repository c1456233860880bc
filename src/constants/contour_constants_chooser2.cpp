#include "kvopt/constants/contour_constants_chooser2.h"

#include "constants/chooser_axes.h"
#include "constants/chooser_rules.h"
#include "kvopt/study.h"

namespace kvopt {

ContourConstantsChooser2::ContourConstantsChooser2(Variables* variables, AxisPage* page,
                                                   const Investigation* investigation)
    : variables_(variables), page_(page), investigation_(investigation) {}

bool ContourConstantsChooser2::SkipFactor(const std::string& name) const {
    return SkipsContourFactor(*variables_, investigation_, AxesOf(*page_), name);
}

}  // namespace kvopt

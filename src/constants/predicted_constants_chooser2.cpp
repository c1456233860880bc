#include "kvopt/constants/predicted_constants_chooser2.h"

#include "constants/chooser_axes.h"
#include "constants/chooser_rules.h"
#include "kvopt/study.h"

namespace kvopt {

PredictedConstantsChooser2::PredictedConstantsChooser2(const Investigation* investigation,
                                                       AxisPage* page, bool filter)
    : investigation_(investigation), page_(page), filter_(filter) {}

bool PredictedConstantsChooser2::SkipFactor(const std::string& name) const {
    return SkipsPredictedFactor(*investigation_, filter_, AxesOf(*page_), name);
}

}  // namespace kvopt

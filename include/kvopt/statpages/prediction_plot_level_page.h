#pragma once

#include "kvopt/export.h"
#include "kvopt/statpages/prediction_level_page.h"

namespace kvopt {

class Investigation;

/// A PredictionLevelPage that can make what was chosen the study's own setting.
class KVOPT_EXPORT PredictionPlotLevelPage : public PredictionLevelPage {
public:
    /// With `saveGlobal`, what was applied is remembered in the study's settings, of an unchanged
    /// page too; without a study nothing is.
    PredictionPlotLevelPage(const Investigation* investigation, CConfLev::ConfLev& level,
                            CConfLev::ConfLev& tolerance, CIntervalType::IntervalType& type,
                            BasePropertyPageHelper* helper, bool* useLevel, bool saveGlobal);
    ~PredictionPlotLevelPage() override;

    bool OnApply() override;

private:
    const Investigation* investigation_;
    bool saveGlobal_;
};

}  // namespace kvopt

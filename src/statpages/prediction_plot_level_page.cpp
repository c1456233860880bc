#include "kvopt/statpages/prediction_plot_level_page.h"

#include "kvopt/study.h"

namespace kvopt {

PredictionPlotLevelPage::PredictionPlotLevelPage(const Investigation* investigation,
                                                 CConfLev::ConfLev& level,
                                                 CConfLev::ConfLev& tolerance,
                                                 CIntervalType::IntervalType& type,
                                                 BasePropertyPageHelper* helper, bool* useLevel,
                                                 bool saveGlobal)
    : PredictionLevelPage(level, tolerance, type, helper, useLevel),
      investigation_(investigation),
      saveGlobal_(saveGlobal) {}

PredictionPlotLevelPage::~PredictionPlotLevelPage() = default;

bool PredictionPlotLevelPage::OnApply() {
    const bool applied = PredictionLevelPage::OnApply();
    if (applied && saveGlobal_) {
        DesignSpaceOptions options(investigation_);
        options.confidenceLevel = ConfidenceLevel();
        options.toleranceProportion = ToleranceProportion();
        options.intervalType = IntervalType();
        options.SaveIntervalAsGlobalSettings(investigation_);
    }
    return applied;
}

}  // namespace kvopt

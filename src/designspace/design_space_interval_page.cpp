#include "kvopt/designspace/design_space_interval_page.h"

#include "kvopt/platform.h"
#include "kvopt/study/design_space_options.h"
#include "statpages/level_choice.h"

namespace kvopt {

DesignSpaceIntervalPage::DesignSpaceIntervalPage(const Investigation* investigation,
                                                 DesignSpaceOptions& options,
                                                 BasePropertyPageHelper* helper, bool saveGlobal)
    : PredictionLevelPage(options.confidenceLevel, options.toleranceProportion,
                          options.intervalType, helper, nullptr),
      options_(&options),
      saveGlobal_(saveGlobal),
      investigation_(investigation) {}

DesignSpaceIntervalPage::DesignSpaceIntervalPage(const Investigation* investigation,
                                                 CConfLev::ConfLev& level,
                                                 CConfLev::ConfLev& tolerance,
                                                 CIntervalType::IntervalType& type,
                                                 BasePropertyPageHelper* helper, bool saveGlobal)
    : PredictionLevelPage(level, tolerance, type, helper, nullptr),
      options_(nullptr),
      saveGlobal_(saveGlobal),
      investigation_(investigation) {}

bool DesignSpaceIntervalPage::OnInitDialog() {
    const bool result = PredictionLevelPage::OnInitDialog();
    ToleranceCombo()->EnableWindow(false);
    LevelCombo()->EnableWindow(IntervalType() == CIntervalType::Tolerance);
    SafetyMarginsText()->ShowWindow(true);
    return result;
}

void DesignSpaceIntervalPage::OnCbnSelchangeIntervalTypeCombo() {
    Changed();
    ToleranceCombo()->EnableWindow(false);
    LevelCombo()->EnableWindow(IntervalCombo()->GetCurSel() == kToleranceEntry);
}

bool DesignSpaceIntervalPage::OnApply() {
    if (!IsChanged()) {
        return PredictionLevelPage::OnApply();
    }
    if (options_ != nullptr) {
        options_->whatToUpdate = DesignSpaceOptions::UpdateAll;
    }
    const bool result = PredictionLevelPage::OnApply();
    if (options_ != nullptr && saveGlobal_) {
        options_->SaveAsGlobalSettings(investigation_);
    }
    return result;
}

}  // namespace kvopt

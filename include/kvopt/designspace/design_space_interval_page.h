#pragma once

#include "kvopt/export.h"
#include "kvopt/statpages/prediction_level_page.h"

namespace kvopt {

class DesignSpaceOptions;
class Investigation;

/// The interval estimate that the points of a design space simulation vary by (template 6230). The
/// confidence level is that of a tolerance interval, and the tolerance proportion stays as it is.
/// Edits its caller's values in place and owns none of them.
class KVOPT_EXPORT DesignSpaceIntervalPage : public PredictionLevelPage {
public:
    /// Edits the interval of the options. With `saveGlobal` each apply of a changed page remembers
    /// all of the options in the study's settings, also one that the page's helper refuses.
    DesignSpaceIntervalPage(const Investigation* investigation, DesignSpaceOptions& options,
                            BasePropertyPageHelper* helper, bool saveGlobal);
    /// Edits three values; nothing is remembered.
    DesignSpaceIntervalPage(const Investigation* investigation, CConfLev::ConfLev& level,
                            CConfLev::ConfLev& tolerance, CIntervalType::IntervalType& type,
                            BasePropertyPageHelper* helper, bool saveGlobal);

    bool OnInitDialog() override;
    bool OnApply() override;
    void OnCbnSelchangeIntervalTypeCombo() override;

private:
    DesignSpaceOptions* options_;
    bool saveGlobal_;
    const Investigation* investigation_;
};

}  // namespace kvopt

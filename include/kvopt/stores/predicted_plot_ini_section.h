#pragma once

#include "kvopt/export.h"
#include "kvopt/stores/plot_wizard_ini_section.h"

namespace kvopt {

/// What the prediction plot remembers in the study's ini file.
class KVOPT_EXPORT PredictedPlotIniSection : public PlotWizardIniSection {
public:
    explicit PredictedPlotIniSection(IniFileSection& section);
    ~PredictedPlotIniSection() override;

    /// Default true.
    bool GetUseConfLevels() const;
    void SetUseConfLevels(bool value);
};

}  // namespace kvopt

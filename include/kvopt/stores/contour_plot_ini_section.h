#pragma once

#include "kvopt/export.h"
#include "kvopt/stores/plot_wizard_ini_section.h"

namespace kvopt {

/// What the contour family remembers in the study's ini file. Design space plots have a section of
/// their own. Without a key each question answers the default told beside it.
class KVOPT_EXPORT ContourPlotIniSection : public PlotWizardIniSection {
public:
    ContourPlotIniSection(IniFileSection& section, bool designSpace);
    ~ContourPlotIniSection() override;

    /// Default true.
    bool UseColor() const;
    void SetUseColor(bool value);
    /// Default false.
    bool UseConstraints() const;
    void SetUseConstraints(bool value);
    /// Default 10000.
    int NumSimulations() const;
    void NumSimulations(int value);
    /// Default true; one value for plots from the design space, one for the others.
    bool ErrorOnAxisFactors(bool fromDesignSpace) const;
    void ErrorOnAxisFactors(bool fromDesignSpace, bool value);
    /// Default true; one value for plots from the design space, one for the others.
    bool ErrorOnConstantFactors(bool fromDesignSpace) const;
    void ErrorOnConstantFactors(bool fromDesignSpace, bool value);
    /// Default 1.
    int DistributionOnFactors() const;
    void DistributionOnFactors(int value);
    /// Default true.
    bool AnalyticalProbability() const;
    void AnalyticalProbability(bool value);
};

}  // namespace kvopt

#pragma once

#include "kvopt/axes/axis_helper.h"
#include "kvopt/export.h"
#include "kvopt/plotargs/contour_plot_data.h"

namespace kvopt {

/// The axes of a design space plot: the set of a plot with four or, in mixture form, five axes, of
/// which the two outer ones stay unused.
class KVOPT_EXPORT ProbabilityContourAxisHelper : public AxisHelper {
public:
    /// Makes the plot a design space plot in process or mixture form.
    ProbabilityContourAxisHelper(const Investigation* investigation, ContourPlotData* data,
                                 bool isMixture);
    ~ProbabilityContourAxisHelper() override;
    ProbabilityContourAxisHelper(const ProbabilityContourAxisHelper&);
    ProbabilityContourAxisHelper& operator=(const ProbabilityContourAxisHelper&);

    /// As a plot with outer axes, whose outer axes are then made unused.
    void Setup() override;

protected:
    void FillAxis(int axis, const char* selected) override;

private:
    void FillMixtureAxis(int axis, const char* selected);
    int FirstOuterAxis() const { return isMixture_ ? 4 : 3; }

    bool isMixture_;
};

}  // namespace kvopt

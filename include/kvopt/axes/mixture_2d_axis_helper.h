#pragma once

#include "kvopt/axes/contour_axis_helper.h"
#include "kvopt/export.h"

namespace kvopt {

/// The three axes of a mixture contour plot.
class KVOPT_EXPORT Mixture2DAxisHelper : public ContourAxisHelper {
public:
    /// Makes the plot a mixture contour.
    Mixture2DAxisHelper(const Investigation* investigation, ContourPlotData* data);
    ~Mixture2DAxisHelper() override;
    Mixture2DAxisHelper(const Mixture2DAxisHelper&);
    Mixture2DAxisHelper& operator=(const Mixture2DAxisHelper&);

protected:
    void FillAxis(int axis, const char* selected) override;
};

}  // namespace kvopt

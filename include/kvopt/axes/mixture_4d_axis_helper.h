#pragma once

#include "kvopt/axes/axis_helper.h"
#include "kvopt/export.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"

namespace kvopt {

/// The five axes of a mixture plot with three inner and two outer axes (4 and 5).
class KVOPT_EXPORT Mixture4DAxisHelper : public AxisHelper {
public:
    /// Makes the plot a mixture plot of this type with equal scales.
    Mixture4DAxisHelper(const Investigation* investigation, ContourPlotData* data,
                        ContourPageData::Type type);
    ~Mixture4DAxisHelper() override;
    Mixture4DAxisHelper(const Mixture4DAxisHelper&);
    Mixture4DAxisHelper& operator=(const Mixture4DAxisHelper&);

    /// Offers the not-used name on the outer axes first; the fill then starts afresh.
    void Setup() override;

protected:
    void FillAxis(int axis, const char* selected) override;
};

}  // namespace kvopt

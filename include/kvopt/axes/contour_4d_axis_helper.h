#pragma once

#include "kvopt/axes/axis_helper.h"
#include "kvopt/export.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"

namespace kvopt {

/// The four axes of a process plot with two inner and two outer axes (3 and 4).
class KVOPT_EXPORT Contour4DAxisHelper : public AxisHelper {
public:
    /// Makes the plot a process plot of this type with equal scales.
    Contour4DAxisHelper(const Investigation* investigation, ContourPlotData* data,
                        ContourPageData::Type type);
    ~Contour4DAxisHelper() override;
    Contour4DAxisHelper(const Contour4DAxisHelper&);
    Contour4DAxisHelper& operator=(const Contour4DAxisHelper&);

    /// Offers the not-used name on the outer axes first; the fill then starts afresh.
    void Setup() override;

protected:
    void FillAxis(int axis, const char* selected) override;
};

}  // namespace kvopt

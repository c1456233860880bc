#pragma once

#include "kvopt/axes/axis_helper.h"
#include "kvopt/export.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"

namespace kvopt {

/// The two axes of a process contour or surface plot.
class KVOPT_EXPORT ContourAxisHelper : public AxisHelper {
public:
    /// Makes the plot a process plot of this type; `axisType` below zero is the set that the plot
    /// uses.
    ContourAxisHelper(const Investigation* investigation, ContourPlotData* data,
                      ContourPageData::Type type, ContourPlotData::AxisType axisType);
    ~ContourAxisHelper() override;
    ContourAxisHelper(const ContourAxisHelper&);
    ContourAxisHelper& operator=(const ContourAxisHelper&);

protected:
    void FillAxis(int axis, const char* selected) override;
};

}  // namespace kvopt

#include "kvopt/axes/mixture_2d_axis_helper.h"

#include "axes/axis_filters.h"

namespace kvopt {

Mixture2DAxisHelper::Mixture2DAxisHelper(const Investigation* investigation, ContourPlotData* data)
    : ContourAxisHelper(investigation, data, ContourPageData::contour_2D,
                        ContourPlotData::Process2D) {
    ContourPageData& page = *data->GetContourTypeData();
    page.SetPlotType(ContourPageData::contour_2D);
    page.SetAxisType(ContourPageData::mixture);
    page.GetOptions().mixtureMode = true;
    SetArguments(ArgumentsOf(*data, ContourPlotData::Mixture2D, 3));
}

Mixture2DAxisHelper::~Mixture2DAxisHelper() = default;
Mixture2DAxisHelper::Mixture2DAxisHelper(const Mixture2DAxisHelper&) = default;
Mixture2DAxisHelper& Mixture2DAxisHelper::operator=(const Mixture2DAxisHelper&) = default;

void Mixture2DAxisHelper::FillAxis(int axis, const char* /*selected*/) {
    FillFactor(AxisFilters::Of(GetInvestigation()).Mixture().get(), axis);
}

}  // namespace kvopt

#include "kvopt/axes/contour_4d_axis_helper.h"

#include "axes/axis_filters.h"

namespace kvopt {

Contour4DAxisHelper::Contour4DAxisHelper(const Investigation* investigation, ContourPlotData* data,
                                         ContourPageData::Type type)
    : AxisHelper(investigation) {
    ContourPageData& page = *data->GetContourTypeData();
    page.SetPlotType(type);
    page.SetAxisType(ContourPageData::process);
    page.GetOptions().scaleEqual = true;
    SetArguments(ArgumentsOf(*data, ContourPlotData::Process4D, 4));
}

Contour4DAxisHelper::~Contour4DAxisHelper() = default;
Contour4DAxisHelper::Contour4DAxisHelper(const Contour4DAxisHelper&) = default;
Contour4DAxisHelper& Contour4DAxisHelper::operator=(const Contour4DAxisHelper&) = default;

void Contour4DAxisHelper::Setup() {
    AddUnusedOption(3);
    AddUnusedOption(4);
    AxisHelper::Setup();
}

void Contour4DAxisHelper::FillAxis(int axis, const char* /*selected*/) {
    FillFactor(AxisFilters::Of(GetInvestigation()).Process4D(axis).get(), axis);
}

}  // namespace kvopt

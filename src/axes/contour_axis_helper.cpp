#include "kvopt/axes/contour_axis_helper.h"

#include "axes/axis_filters.h"

namespace kvopt {

ContourAxisHelper::ContourAxisHelper(const Investigation* investigation, ContourPlotData* data,
                                     ContourPageData::Type type, ContourPlotData::AxisType axisType)
    : AxisHelper(investigation) {
    ContourPageData& page = *data->GetContourTypeData();
    page.SetPlotType(type);
    page.SetAxisType(ContourPageData::process);
    page.GetOptions().mixtureMode = false;
    SetArguments(ArgumentsOf(*data, axisType, 2));
}

ContourAxisHelper::~ContourAxisHelper() = default;
ContourAxisHelper::ContourAxisHelper(const ContourAxisHelper&) = default;
ContourAxisHelper& ContourAxisHelper::operator=(const ContourAxisHelper&) = default;

void ContourAxisHelper::FillAxis(int axis, const char* /*selected*/) {
    FillFactor(AxisFilters::Of(GetInvestigation()).Process().get(), axis);
}

}  // namespace kvopt

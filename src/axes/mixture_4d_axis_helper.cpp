#include "kvopt/axes/mixture_4d_axis_helper.h"

#include "axes/axis_filters.h"

namespace kvopt {

Mixture4DAxisHelper::Mixture4DAxisHelper(const Investigation* investigation, ContourPlotData* data,
                                         ContourPageData::Type type)
    : AxisHelper(investigation) {
    ContourPageData& page = *data->GetContourTypeData();
    page.SetPlotType(type);
    page.SetAxisType(ContourPageData::mixture);
    page.GetOptions().scaleEqual = true;
    page.GetOptions().mixtureMode = true;
    SetArguments(ArgumentsOf(*data, ContourPlotData::Mixture4D, 5));
}

Mixture4DAxisHelper::~Mixture4DAxisHelper() = default;
Mixture4DAxisHelper::Mixture4DAxisHelper(const Mixture4DAxisHelper&) = default;
Mixture4DAxisHelper& Mixture4DAxisHelper::operator=(const Mixture4DAxisHelper&) = default;

void Mixture4DAxisHelper::Setup() {
    AddUnusedOption(4);
    AddUnusedOption(5);
    AxisHelper::Setup();
}

void Mixture4DAxisHelper::FillAxis(int axis, const char* /*selected*/) {
    FillFactor(AxisFilters::Of(GetInvestigation()).Mixture4D(axis).get(), axis);
}

}  // namespace kvopt

#include "kvopt/axes/probability_contour_axis_helper.h"

#include "axes/axis_filters.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/study/axis_info.h"

namespace kvopt {

ProbabilityContourAxisHelper::ProbabilityContourAxisHelper(const Investigation* investigation,
                                                           ContourPlotData* data, bool isMixture)
    : AxisHelper(investigation), isMixture_(isMixture) {
    ContourPageData& page = *data->GetContourTypeData();
    page.SetPlotType(ContourPageData::ds_probability);
    page.SetAxisType(isMixture ? ContourPageData::mixture : ContourPageData::process);
    page.GetOptions().mixtureMode = isMixture;
    const int set = isMixture ? ContourPlotData::Mixture4D : ContourPlotData::Process4D;
    SetArguments(ArgumentsOf(*data, set, isMixture ? 5 : 4));
}

ProbabilityContourAxisHelper::~ProbabilityContourAxisHelper() = default;
ProbabilityContourAxisHelper::ProbabilityContourAxisHelper(const ProbabilityContourAxisHelper&) =
    default;
ProbabilityContourAxisHelper& ProbabilityContourAxisHelper::operator=(
    const ProbabilityContourAxisHelper&) = default;

void ProbabilityContourAxisHelper::Setup() {
    AddUnusedOption(FirstOuterAxis());
    AddUnusedOption(FirstOuterAxis() + 1);
    AxisHelper::Setup();
    for (const int axis : {FirstOuterAxis(), FirstOuterAxis() + 1}) {
        if (AxisInfo* outer = Axis(axis)) {
            outer->SetName(AxisInfo::GetNotUsedName());
        }
    }
}

void ProbabilityContourAxisHelper::FillAxis(int axis, const char* selected) {
    if (isMixture_) {
        FillMixtureAxis(axis, selected);
    } else {
        FillFactor(AxisFilters::Of(GetInvestigation()).Process().get(), axis);
    }
}

void ProbabilityContourAxisHelper::FillMixtureAxis(int axis, const char* /*selected*/) {
    FillFactor(AxisFilters::Of(GetInvestigation()).Mixture().get(), axis);
}

}  // namespace kvopt

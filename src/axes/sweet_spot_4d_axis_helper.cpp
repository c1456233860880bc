#include "kvopt/axes/sweet_spot_4d_axis_helper.h"

#include "axes/axis_filters.h"
#include "kvopt/plotargs/sweet_spot_data.h"

namespace kvopt {

SweetSpot4DAxisHelper::SweetSpot4DAxisHelper(const Investigation* investigation,
                                             SweetSpotData* data)
    : AxisHelper(investigation), isMixture_(data->IsMixture()) {
    SetArguments(ArgumentsOf(*data, data->GetPlotType(), isMixture_ ? 5 : 4));
}

SweetSpot4DAxisHelper::~SweetSpot4DAxisHelper() = default;
SweetSpot4DAxisHelper::SweetSpot4DAxisHelper(const SweetSpot4DAxisHelper&) = default;
SweetSpot4DAxisHelper& SweetSpot4DAxisHelper::operator=(const SweetSpot4DAxisHelper&) = default;

void SweetSpot4DAxisHelper::Setup() {
    AddUnusedOption(FirstOuterAxis());
    AddUnusedOption(FirstOuterAxis() + 1);
    AxisHelper::Setup();
}

void SweetSpot4DAxisHelper::FillAxis(int axis, const char* selected) {
    if (isMixture_) {
        FillMixtureAxis(axis, selected);
    } else {
        FillFactor(AxisFilters::Of(GetInvestigation()).Process4D(axis).get(), axis);
    }
}

void SweetSpot4DAxisHelper::FillMixtureAxis(int axis, const char* /*selected*/) {
    FillFactor(AxisFilters::Of(GetInvestigation()).Mixture4D(axis).get(), axis);
}

}  // namespace kvopt

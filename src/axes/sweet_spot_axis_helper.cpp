#include "kvopt/axes/sweet_spot_axis_helper.h"

#include "axes/axis_filters.h"
#include "kvopt/plotargs/sweet_spot_data.h"

namespace kvopt {

SweetSpotAxisHelper::SweetSpotAxisHelper(const Investigation* investigation, SweetSpotData* data)
    : AxisHelper(investigation), isMixture_(data->IsMixture()) {
    SetArguments(ArgumentsOf(*data, data->GetPlotType(), isMixture_ ? 3 : 2));
}

SweetSpotAxisHelper::~SweetSpotAxisHelper() = default;
SweetSpotAxisHelper::SweetSpotAxisHelper(const SweetSpotAxisHelper&) = default;
SweetSpotAxisHelper& SweetSpotAxisHelper::operator=(const SweetSpotAxisHelper&) = default;

void SweetSpotAxisHelper::FillAxis(int axis, const char* selected) {
    if (isMixture_) {
        FillMixtureAxis(axis, selected);
    } else {
        FillFactor(AxisFilters::Of(GetInvestigation()).Process().get(), axis);
    }
}

void SweetSpotAxisHelper::FillMixtureAxis(int axis, const char* /*selected*/) {
    FillFactor(AxisFilters::Of(GetInvestigation()).Mixture().get(), axis);
}

}  // namespace kvopt

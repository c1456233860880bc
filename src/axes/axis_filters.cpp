#include "axes/axis_filters.h"

#include <limits>

#include "kvopt/axes/axis_type.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/variables.h"

namespace kvopt {

AxisFilters AxisFilters::Of(const Investigation* investigation) {
    const bool asksModels = investigation->GetResponseManager()->GetCount(ResponseEx::External) < 1;
    return {investigation->GetVariables(), asksModels ? investigation : nullptr};
}

int AxisFilters::FactorCount() const {
    return models_ != nullptr ? ResponseModelUtilities(models_).GetUsedCount(
                                    CEVar::AllFactors, std::numeric_limits<int>::max())
                              : variables_->GetCount(CEVar::AllFactors);
}

std::unique_ptr<UseFactor> AxisFilters::NonQualitative() const {
    return std::make_unique<AxisType::AddNonQualitativeFactor>(variables_, models_);
}

std::unique_ptr<UseFactor> AxisFilters::Process() const {
    if (variables_->IstrueFiller()) {
        return NonQualitative();
    }
    return std::make_unique<AxisType::AddProcessFactor>(variables_, models_);
}

std::unique_ptr<UseFactor> AxisFilters::Mixture() const {
    return std::make_unique<AxisType::AddMixtureFactor>(variables_, models_);
}

std::unique_ptr<UseFactor> AxisFilters::NonMixture() const {
    return std::make_unique<AxisType::AddNonMixtureFactor>(variables_, models_);
}

std::unique_ptr<UseFactor> AxisFilters::Process4D(int axis) const {
    return axis < 3 ? Process() : NonMixture();
}

std::unique_ptr<UseFactor> AxisFilters::Mixture4D(int axis) const {
    return axis < 4 ? Mixture() : NonMixture();
}

}  // namespace kvopt

#include "kvopt/study/model_spec.h"

#include <limits>

#include "kvopt/study/investigation.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/variables.h"

namespace kvopt {

namespace {

bool HoldsOnly(const Investigation* investigation, CEVar wanted, CEVar other) {
    constexpr int kNoLimit = std::numeric_limits<int>::max();
    const ResponseModelUtilities models(investigation);
    return models.GetUsedCount(wanted, kNoLimit) > 0 && models.GetUsedCount(other, kNoLimit) == 0;
}

}  // namespace

NCDesign::~NCDesign() = default;

Factors::Factors(const Investigation* investigation) : investigation_(investigation) {}

Factors::~Factors() = default;

bool Factors::IsMixtureOnly() const {
    return HoldsOnly(investigation_, CEVar::MixtureFactors, CEVar::ProcessFactors);
}

bool Factors::IsProcessOnly() const {
    return HoldsOnly(investigation_, CEVar::ProcessFactors, CEVar::MixtureFactors);
}

Objective::Objective(const Investigation* investigation) : factors_(investigation) {}

Objective::~Objective() = default;

const Factors* Objective::GetFactors() const {
    return &factors_;
}

ModelSpec::ModelSpec(const Investigation* investigation)
    : Objective(investigation), investigation_(investigation) {}

ModelSpec::~ModelSpec() = default;

int ModelSpec::GetBlockCount(int /*design*/) const {
    const FactorClass* block = investigation_ != nullptr
                                   ? investigation_->GetVariables()->GetFactor(kBlockFactorName)
                                   : nullptr;
    return block != nullptr ? block->settingCount : 0;
}

std::shared_ptr<NCDesign> ModelSpec::GetDesign() const {
    return nullptr;
}

}  // namespace kvopt

#include "kvopt/study/model_queries.h"

#include <algorithm>

#include "kvopt/study/investigation.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/variables.h"

namespace kvopt {
namespace {

bool IsFiller(const FactorClass& factor) {
    return factor.factorValue.type == CEType::Filler;
}

bool IsOfKind(const FactorClass& factor, CEVar which) {
    switch (which) {
        case CEVar::AllFactors:
            return !IsFiller(factor);
        case CEVar::ProcessFactors:
            return !IsFiller(factor) && !factor.IsMixture();
        case CEVar::MixtureFactors:
            return factor.IsMixture();
    }
    return false;
}

}  // namespace

ModelQueries::ModelQueries(const Investigation* investigation) : investigation_(investigation) {}

ModelQueries::~ModelQueries() = default;

bool ModelQueries::HasModel() const {
    return false;
}

CFitMethod::FitMethod ModelQueries::GetFitMethod(bool /*selectedOnly*/) const {
    return CFitMethod::NotFitted;
}

int ModelQueries::GetUsedCount(CEVar which, int limit) const {
    if (investigation_ == nullptr) {
        return 0;
    }
    int count = 0;
    for (const FactorClass* factor : investigation_->GetVariables()->GetAllFactors()) {
        if (count < limit && IsOfKind(*factor, which) && IsFactorAvailable(factor, true, false)) {
            ++count;
        }
    }
    return count;
}

bool ModelQueries::IsFactorAvailable(const FactorClass* factor, bool inModel,
                                     bool fittedOnly) const {
    return factor != nullptr && (!inModel || (!fittedOnly && !IsFiller(*factor)));
}

bool ModelQueries::IsResponseAvailable(const std::string& response, bool fittedOnly) const {
    if (investigation_ == nullptr || fittedOnly) {
        return false;
    }
    if (investigation_->GetResponseManager()->GetResponse(response) != nullptr) {
        return true;
    }
    const std::vector<ResponseClass*> responses = investigation_->GetVariables()->GetAllResponses();
    return std::any_of(responses.begin(), responses.end(), [&](const ResponseClass* candidate) {
        return candidate->GetName() == response;
    });
}

bool ModelQueries::IsInAnyModel(int factorIndex) const {
    if (investigation_ == nullptr) {
        return false;
    }
    const Variables& variables = *investigation_->GetVariables();
    const auto isIt = [&](const FactorClass* factor) {
        return factor != nullptr && factor->index == factorIndex &&
               IsFactorAvailable(factor, true, false);
    };
    // Most hosts number their factors as they stand and find one without going through all.
    if (isIt(variables.GetIndexFactor(factorIndex))) {
        return true;
    }
    const std::vector<FactorClass*> factors = variables.GetAllFactors();
    return std::any_of(factors.begin(), factors.end(), isIt);
}

std::shared_ptr<TermInfo> ModelQueries::CreateCompleteModel() const {
    return std::make_shared<TermInfo>();
}

int ModelQueries::GetConfidenceDataType(int /*responseIndex*/) const {
    return 0;
}

bool ModelQueries::CanCalculatePower() const {
    return false;
}

}  // namespace kvopt

#include "kvopt/study/model_queries.h"

#include <algorithm>

#include "kvopt/study/investigation.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/variables.h"

namespace kvopt {

ModelQueries::ModelQueries(const Investigation* investigation) : investigation_(investigation) {}

ModelQueries::~ModelQueries() = default;

bool ModelQueries::HasModel() const {
    return false;
}

CFitMethod::FitMethod ModelQueries::GetFitMethod(bool /*selectedOnly*/) const {
    return CFitMethod::NotFitted;
}

int ModelQueries::GetUsedCount(CEVar which, int limit) const {
    const Variables& variables = *investigation_->GetVariables();
    int fillers = 0;
    for (const FactorClass* factor : variables.GetAllFactors()) {
        fillers += factor->factorValue.type == CEType::Filler ? 1 : 0;
    }
    const int count = variables.GetCount(which) - (which == CEVar::ProcessFactors ? 0 : fillers);
    return std::min(count, limit);
}

bool ModelQueries::IsFactorAvailable(const FactorClass* factor, bool /*inModel*/,
                                     bool /*fittedOnly*/) const {
    return factor != nullptr && factor->factorValue.type != CEType::Filler;
}

bool ModelQueries::IsResponseAvailable(const std::string& response, bool fittedOnly) const {
    if (fittedOnly) {
        return false;
    }
    const std::vector<ResponseClass*> responses = investigation_->GetVariables()->GetAllResponses();
    return std::any_of(responses.begin(), responses.end(),
                       [&](const ResponseClass* known) { return known->name == response; }) ||
           investigation_->GetResponseManager()->GetResponse(response) != nullptr;
}

bool ModelQueries::IsInAnyModel(int /*factorIndex*/) const {
    return true;
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

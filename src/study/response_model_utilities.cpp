#include "kvopt/study/response_model_utilities.h"

#include "kvopt/study/investigation.h"
#include "kvopt/study/model_queries.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/variables.h"

namespace kvopt {

namespace {

const ModelQueries* QueriesOf(const Investigation* investigation) {
    return investigation != nullptr ? investigation->GetModelQueries() : nullptr;
}

}  // namespace

ResponseModelUtilities::ResponseModelUtilities(const Investigation* investigation)
    : investigation_(investigation), queries_(QueriesOf(investigation)) {}

bool ResponseModelUtilities::HasModel() const {
    return queries_ != nullptr && queries_->HasModel();
}

CFitMethod::FitMethod ResponseModelUtilities::GetFitMethod(bool selectedOnly) const {
    return queries_ != nullptr ? queries_->GetFitMethod(selectedOnly) : CFitMethod::NotFitted;
}

int ResponseModelUtilities::GetUsedCount(CEVar which, int limit) const {
    return queries_ != nullptr ? queries_->GetUsedCount(which, limit) : 0;
}

bool ResponseModelUtilities::IsFactorAvailable(const std::string& factor, bool inModel,
                                               bool fittedOnly) const {
    return investigation_ != nullptr &&
           IsFactorAvailable(investigation_->GetVariables()->GetFactor(factor), inModel,
                             fittedOnly);
}

bool ResponseModelUtilities::IsFactorAvailable(const FactorClass* factor, bool inModel,
                                               bool fittedOnly) const {
    return queries_ != nullptr && factor != nullptr &&
           queries_->IsFactorAvailable(factor, inModel, fittedOnly);
}

bool ResponseModelUtilities::IsResponseAvailable(const std::string& response,
                                                 bool fittedOnly) const {
    return queries_ != nullptr && queries_->IsResponseAvailable(response, fittedOnly);
}

bool ResponseModelUtilities::IsVariableAvailable(const std::string& name) const {
    return IsFactorAvailable(name, false, false) || IsResponseAvailable(name, false);
}

bool ResponseModelUtilities::IsInAnyModel(int factorIndex) const {
    return queries_ != nullptr && queries_->IsInAnyModel(factorIndex);
}

std::shared_ptr<TermInfo> ResponseModelUtilities::CreateCompleteModel() const {
    const std::shared_ptr<TermInfo> terms =
        queries_ != nullptr ? queries_->CreateCompleteModel() : nullptr;
    return terms != nullptr ? terms : std::make_shared<TermInfo>();
}

int MVAUtilities::CountQualFac(const Investigation* investigation) {
    if (investigation == nullptr) {
        return 0;
    }
    const ResponseModelUtilities models(investigation);
    int count = 0;
    for (const FactorClass* factor : investigation->GetVariables()->GetAllFactors()) {
        count += factor->IsQualitative() && models.IsInAnyModel(factor->index) ? 1 : 0;
    }
    return count;
}

SuperResponsePredictor::SuperResponsePredictor(const Investigation* investigation)
    : investigation_(investigation) {}

int SuperResponsePredictor::GetResponseIndex(const std::string& name) const {
    return investigation_ != nullptr
               ? investigation_->GetResponseManager()->GetIndex(name, ResponseEx::Any)
               : 0;
}

int SuperResponsePredictor::GetConfidenceDataType() const {
    const ModelQueries* queries = QueriesOf(investigation_);
    return queries != nullptr && response_ > 0 ? queries->GetConfidenceDataType(response_) : 0;
}

bool PowerCalculator::CanCalculatePower(const Investigation* investigation) {
    const ModelQueries* queries = QueriesOf(investigation);
    return queries != nullptr && queries->CanCalculatePower();
}

}  // namespace kvopt

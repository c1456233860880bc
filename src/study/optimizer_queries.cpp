#include "kvopt/study/optimizer_queries.h"

#include "kvopt/study/investigation.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

OptimizerQueries::~OptimizerQueries() = default;

std::vector<float> OptimizerQueries::CalculateFactorContribution(
    const std::vector<float>& /*start*/) const {
    return {};
}

std::vector<float> OptimizerQueries::CalculateRequiredOnlyOptima(int /*optimizerRun*/) const {
    return {};
}

float OptimizerQueries::GetOptimalValue(const std::string& /*factor*/,
                                        FavouriteSetpoint::OptimaType /*type*/) const {
    return kNotSetF;
}

std::string OptimizerQueries::GetOptimalSetting(const std::string& /*factor*/,
                                                FavouriteSetpoint::OptimaType /*type*/) const {
    return {};
}

std::vector<float> SimplexSetup::CalculateFactorContribution(const Investigation& investigation,
                                                             const std::vector<float>& start) {
    const OptimizerQueries* queries = investigation.GetOptimizerQueries();
    return queries != nullptr ? queries->CalculateFactorContribution(start) : std::vector<float>();
}

std::vector<float> SimplexSetup::CalculateRequiredOnlyOptima(const Investigation& investigation,
                                                             int optimizerRun) {
    const OptimizerQueries* queries = investigation.GetOptimizerQueries();
    return queries != nullptr ? queries->CalculateRequiredOnlyOptima(optimizerRun)
                              : std::vector<float>();
}

}  // namespace kvopt

#pragma once

#include <string>
#include <vector>

#include "host/mixture.h"
#include "host/reference_models.h"
#include "kvopt/study/optimizer_queries.h"

namespace kvopt {

/// What a study without an optimizer can say: the contributions of the factors around a start, and
/// the favourite setpoint as the optimum of that name.
class ReferenceOptimizer final : public OptimizerQueries {
public:
    /// All arguments outlive the object.
    ReferenceOptimizer(const Investigation* study, const StudyData& data, const Mixture& mixture,
                       const ReferenceModels& models);

    /// The share, in percent, that the factor has in what the response changes when each factor in
    /// turn moves through its range from the start; the mean over the fitted responses. A part of a
    /// mixture moves with the others in proportion. kNotSet for factors that no fitted model uses
    /// or that do not vary.
    std::vector<float> CalculateFactorContribution(const std::vector<float>& start) const override;
    float GetOptimalValue(const std::string& factor,
                          FavouriteSetpoint::OptimaType type) const override;
    std::string GetOptimalSetting(const std::string& factor,
                                  FavouriteSetpoint::OptimaType type) const override;

private:
    /// The start with the middle of the range in the place of what is not set.
    std::vector<double> Complete(const std::vector<float>& start) const;
    /// Highest less lowest prediction while the factor moves; below 0 when it cannot.
    double Effect(const ModelFit& fit, std::size_t response, std::size_t factor,
                  const std::vector<double>& start) const;
    float FavouriteValue(std::size_t factor) const;

    const Investigation* study_;
    const StudyData& data_;
    const Mixture& mixture_;
    const ReferenceModels& models_;
};

}  // namespace kvopt

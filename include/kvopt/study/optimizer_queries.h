#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/favourite_setpoint.h"

namespace kvopt {

class Investigation;

/// What only the host's optimizer knows. A host that has one derives from it and gives its object
/// from Investigation::GetOptimizerQueries(). Without an override there is no answer.
class KVOPT_EXPORT OptimizerQueries {
public:
    virtual ~OptimizerQueries();

    /// One contribution for each factor at the start point, empty without an answer, kNotSet for
    /// a factor that contributes nothing.
    virtual std::vector<float> CalculateFactorContribution(const std::vector<float>& start) const;
    /// The optimum of the responses that have to be met, one value for each factor in the order of
    /// Variables; empty without an answer. `optimizerRun` is -1 for the present run.
    virtual std::vector<float> CalculateRequiredOnlyOptima(int optimizerRun) const;
    /// kNotSet without an answer.
    virtual float GetOptimalValue(const std::string& factor,
                                  FavouriteSetpoint::OptimaType type) const;
    /// Empty without an answer.
    virtual std::string GetOptimalSetting(const std::string& factor,
                                          FavouriteSetpoint::OptimaType type) const;
};

/// The set-up of the optimizer: forwards to the host's OptimizerQueries, and has no answer without.
class KVOPT_EXPORT SimplexSetup {
public:
    SimplexSetup() = delete;

    /// One contribution for each factor, empty when there is no answer.
    static std::vector<float> CalculateFactorContribution(const Investigation& investigation,
                                                          const std::vector<float>& start);
    /// One value for each factor, empty when there is no answer.
    static std::vector<float> CalculateRequiredOnlyOptima(const Investigation& investigation,
                                                          int optimizerRun);
};

}  // namespace kvopt

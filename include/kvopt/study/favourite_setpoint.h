#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

class Investigation;

/// The setpoint that the analyst marked as the favourite, and the optima of the optimizer.
/// Investigation holds one by value; it forwards to the host's OptimizerQueries.
class KVOPT_EXPORT FavouriteSetpoint {
public:
    /// The host passes its own value through.
    enum OptimaType : int {
        Favourite = 0,
        RequiredOnly = 1,  ///< of the responses that have to be met
        AllResponses = 2,
    };

    /// Computes a start for a run of the optimizer.
    using StartFunction = std::vector<float> (*)(const Investigation&, int optimizerRun);

    explicit FavouriteSetpoint(const Investigation* investigation);

    /// One value for each factor in the order of Variables, empty when there is none. A qualitative
    /// factor's value is the one-based index of its setting. The favourite when one was marked,
    /// else what `calculate` answers for run -1; the result lives until the next call.
    const std::vector<float>& GetDefaultStart(StartFunction calculate) const;
    /// Marks a favourite; an empty vector takes the mark away.
    void SetStart(std::vector<float> start);

    /// The optimal value of a quantitative factor, kNotSet when there is none.
    float GetOptimalValue(const std::string& factor, const Investigation& investigation,
                          OptimaType type) const;
    /// The optimal setting of a qualitative factor, empty when there is none.
    std::string GetOptimalSetting(const std::string& factor, const Investigation& investigation,
                                  OptimaType type) const;

private:
    const Investigation* investigation_;
    std::vector<float> start_;
    mutable std::vector<float> calculated_;
};

}  // namespace kvopt

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/host/study_data.h"

namespace kvopt {

class ModelMatrix;

/// The model of one response, fitted by ordinary least squares to the runs that hold a value.
///
/// Numeric factors are coded from -1 at their low to +1 at their high. Parts of a mixture count as
/// shares of the total, in pseudo-components where the study has them. A qualitative factor of n
/// settings has n - 1 coefficients, one for each setting but the first; that of the first is minus
/// their sum. Values are those of the transformed response unless told otherwise. Immutable.
class KVOPT_EXPORT ModelFit {
public:
    struct Coefficient {
        std::string name;  ///< "Constant", or the term: "A*B", "A*A", "D[Air]"
        double value = 0.0;
        /// False where the terms before it explain this one, or the runs are too few; then 0.
        bool estimated = false;
    };

    /// The records must make a study; a response without a model throws InvalidArgument. Keeps
    /// nothing of them.
    ModelFit(const StudyData& study, const StudyResponse& response);
    ~ModelFit();
    ModelFit(const ModelFit&) = delete;
    ModelFit& operator=(const ModelFit&) = delete;

    /// At least one run holds a value of the response.
    bool IsFitted() const { return !observed_.empty(); }
    const std::vector<Coefficient>& Coefficients() const { return coefficients_; }
    /// The zero-based numbers of the runs that hold a value, and what was observed and is fitted
    /// there.
    const std::vector<std::size_t>& Runs() const { return runs_; }
    const std::vector<double>& Observed() const { return observed_; }
    const std::vector<double>& Fitted() const { return fitted_; }

    /// The share of the variation about the mean that the model explains; about 0 when the model
    /// holds no constant, not even as the sum of a mixture. kNotSet where nothing varies.
    double RSquared() const { return rSquared_; }
    int ResidualDegreesOfFreedom() const;
    /// kNotSet without degrees of freedom.
    double ResidualStandardDeviation() const;

    /// The model's value at a point: one value for each factor of the study in its own units, of a
    /// qualitative factor the one-based index of a setting.
    double Predict(const std::vector<double>& point) const;
    /// The same in the units of the response, with its transform undone.
    double PredictResponse(const std::vector<double>& point) const;

private:
    std::unique_ptr<const ModelMatrix> matrix_;
    StudyTransform transform_;
    std::vector<Coefficient> coefficients_;
    std::vector<std::size_t> runs_;
    std::vector<double> observed_;
    std::vector<double> fitted_;
    double rSquared_ = kNotSet;
    double residualSum_ = 0.0;
    int rank_ = 0;
};

}  // namespace kvopt

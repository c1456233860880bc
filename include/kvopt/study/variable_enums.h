#pragma once

/// \file
/// The kinds, uses and counts of variables, by the numbers that studies store.

namespace kvopt {

/// Which factors Variables::GetCount() and ModelQueries::GetUsedCount() count.
enum class CEVar : int {
    AllFactors = 1,
    ProcessFactors = 2,
    MixtureFactors = 3,  ///< formulation factors; Variables counts the filler among them
};

/// What a factor is used for in the study.
struct CEUse {
    enum EUse : int {
        Controlled = 1,    ///< set by the design
        Uncontrolled = 2,  ///< measured, not set
        Constant = 3,      ///< held constant; never lies on an axis
    };
};

/// The kind of a factor.
struct CEType {
    enum EType : int {
        Quantitative = 1,  ///< any number within its range
        Multilevel = 2,    ///< a number out of a list of levels
        Qualitative = 3,   ///< a setting out of a list of names
        Formulation = 4,   ///< a part of a mixture
        Filler = 5,        ///< the part of a mixture that makes up the rest
        Discrete = 6,      ///< a number out of a list of levels, between which a model may go
        Covariate = 7,     ///< a number that is measured with the response
    };

    /// Whether grids show the kind as a list of levels.
    static constexpr bool IsList(EType type) {
        return type == Multilevel || type == Qualitative || type == Discrete;
    }
};

/// How the models of the study were fitted.
struct CFitMethod {
    enum FitMethod : int {
        NotFitted = 0,
        LeastSquares = 2,         ///< least squares with a constant term
        PartialLeastSquares = 3,  ///< components that explain factors and responses together
        MixtureModel = 4,         ///< least squares without a constant term
    };
};

}  // namespace kvopt

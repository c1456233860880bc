#pragma once

#include "kvopt/axes/use_factor.h"
#include "kvopt/export.h"

namespace kvopt {

class Variables;

/// The filters that say which factors may lie on which axes. Each asks the type and the use of a
/// factor first, then, as the base test, whether the models know it. Factors whose use is constant
/// pass none but AddNonFiller, fillers pass none at all. Nothing that the filters are given is
/// owned; the variables must be there.
namespace AxisType {

/// Numbers, and with a true filler the formulation factors, which then vary as freely.
class KVOPT_EXPORT AddProcessFactor : public UseFactor {
public:
    AddProcessFactor(const Variables* variables, const Investigation* investigation);
    bool operator()(const FactorClass* factor, bool flag) const override;

private:
    const Variables* variables_;
};

/// All but qualitative factors.
class KVOPT_EXPORT AddNonQualitativeFactor : public UseFactor {
public:
    AddNonQualitativeFactor(const Variables* variables, const Investigation* investigation);
    bool operator()(const FactorClass* factor, bool flag) const override;

private:
    const Variables* variables_;
};

/// All but fillers. The one filter that does not look at the use; it serves lists of factors, not
/// axes.
class KVOPT_EXPORT AddNonFiller : public UseFactor {
public:
    AddNonFiller(const Variables* variables, const Investigation* investigation);
    bool operator()(const FactorClass* factor, bool flag) const override;

private:
    const Variables* variables_;
};

/// Formulation factors alone.
class KVOPT_EXPORT AddMixtureFactor : public UseFactor {
public:
    AddMixtureFactor(const Variables* variables, const Investigation* investigation);
    bool operator()(const FactorClass* factor, bool flag) const override;

protected:
    const Variables* GetVariables() const { return variables_; }

private:
    const Variables* variables_;
};

/// Process factors, the qualitative ones included, and with a true filler the formulation factors.
class KVOPT_EXPORT AddNonMixtureFactor : public AddMixtureFactor {
public:
    AddNonMixtureFactor(const Variables* variables, const Investigation* investigation);
    bool operator()(const FactorClass* factor, bool flag) const override;
};

}  // namespace AxisType
}  // namespace kvopt

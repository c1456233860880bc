#pragma once

#include "kvopt/export.h"

namespace kvopt {

class FactorClass;
class Investigation;

/// Says of a factor whether a list may offer it: the base asks the models of a study alone. A small
/// value made on the spot for one fill. The investigation is not owned and may be null.
class KVOPT_EXPORT UseFactor {
public:
    explicit UseFactor(const Investigation* investigation) : investigation_(investigation) {}
    virtual ~UseFactor();
    UseFactor(const UseFactor&) = default;
    UseFactor& operator=(const UseFactor&) = default;

    /// Whether the factor is available in the models; always without an investigation. `flag` is
    /// handed on to the models, every caller passes true.
    virtual bool operator()(const FactorClass* factor, bool flag) const;

protected:
    /// The base test.
    bool IsInModels(const FactorClass* factor, bool flag) const;

private:
    const Investigation* investigation_;
};

}  // namespace kvopt

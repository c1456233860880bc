#pragma once

#include <string>
#include <utility>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

class FactorClass;
class ResponseEx;

/// A multivariate model of the host, as far as plots ask it.
class KVOPT_EXPORT PLSModel {
public:
    virtual ~PLSModel();

    /// The number of components of the model.
    virtual int GetAMod() const = 0;
};

/// The fit of one response. Without an override nothing is fitted and everything is available.
class KVOPT_EXPORT FitInfo {
public:
    virtual ~FitInfo();

    /// Whether the model of the response uses the factor.
    virtual bool IsFactorAvailable(const FactorClass* factor, const ResponseEx* response) const;
    virtual bool IsResponseAvailable(const std::string& response, bool fitted) const;
    virtual bool IsFitted() const;
    /// Null when the fit is not multivariate. Not owned by the caller.
    virtual const PLSModel* GetPLSModel() const;
};

/// The names of a model's terms, in order and one-based.
class KVOPT_EXPORT ItmInfo {
public:
    ItmInfo() = default;
    /// `names` without an empty element at the front.
    explicit ItmInfo(std::vector<std::string> names) : names_(std::move(names)) {}

    int GetNItm() const { return static_cast<int>(names_.size()); }
    /// A term by its one-based index: factor abbreviations joined by "*". Empty outside.
    std::string GetINam(int index) const;

private:
    std::vector<std::string> names_;
};

/// The terms of a model. The constant term, where the model has one, is the first.
class KVOPT_EXPORT TermInfo : public ItmInfo {
public:
    using ItmInfo::ItmInfo;
};

}  // namespace kvopt

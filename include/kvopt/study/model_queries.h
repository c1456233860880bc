#pragma once

#include <memory>
#include <string>

#include "kvopt/export.h"
#include "kvopt/study/fit_info.h"
#include "kvopt/study/variable_enums.h"

namespace kvopt {

class FactorClass;
class Investigation;

/// What only the host's models know. A host with models derives from it and gives its object from
/// Investigation::GetModelQueries(). Without an override it answers for a study that has no models
/// yet: nothing is fitted, and every factor and response of the study may be plotted.
class KVOPT_EXPORT ModelQueries {
public:
    explicit ModelQueries(const Investigation* investigation);
    virtual ~ModelQueries();
    ModelQueries(const ModelQueries&) = delete;
    ModelQueries& operator=(const ModelQueries&) = delete;

    virtual bool HasModel() const;
    /// With `selectedOnly` the method of the responses in use, else of all.
    virtual CFitMethod::FitMethod GetFitMethod(bool selectedOnly) const;
    /// How many factors of the kind the models use, counted no further than `limit`. No filler
    /// counts.
    virtual int GetUsedCount(CEVar which, int limit) const;
    /// Whether a factor may be plotted. `inModel` asks for a factor that a model uses, or that is
    /// a part of a mixture; `fittedOnly` leaves out models that are not fitted.
    virtual bool IsFactorAvailable(const FactorClass* factor, bool inModel, bool fittedOnly) const;
    virtual bool IsResponseAvailable(const std::string& response, bool fittedOnly) const;
    /// By the factor's index.
    virtual bool IsInAnyModel(int factorIndex) const;
    /// The terms of all models together. Never null.
    virtual std::shared_ptr<TermInfo> CreateCompleteModel() const;
    /// What predictions of a response can say about their uncertainty, by the one-based index of
    /// the response; 2 stands for intervals.
    virtual int GetConfidenceDataType(int responseIndex) const;
    virtual bool CanCalculatePower() const;

protected:
    const Investigation* GetInvestigation() const { return investigation_; }

private:
    const Investigation* investigation_;
};

}  // namespace kvopt

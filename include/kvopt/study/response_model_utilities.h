#pragma once

#include <memory>
#include <string>

#include "kvopt/export.h"
#include "kvopt/study/fit_info.h"
#include "kvopt/study/variable_enums.h"

namespace kvopt {

class FactorClass;
class Investigation;
class ModelQueries;

/// Questions about the models of a study: a small value made on the spot and thrown away, which
/// forwards to the host's ModelQueries. Without an investigation nothing is available and every
/// count is 0.
class KVOPT_EXPORT ResponseModelUtilities {
public:
    explicit ResponseModelUtilities(const Investigation* investigation);

    bool HasModel() const;
    CFitMethod::FitMethod GetFitMethod(bool selectedOnly) const;
    /// How many factors of the kind the models use, counted no further than `limit`.
    int GetUsedCount(CEVar which, int limit) const;
    /// Whether a factor may be plotted; false for an unknown name.
    bool IsFactorAvailable(const std::string& factor, bool inModel, bool fittedOnly) const;
    bool IsFactorAvailable(const FactorClass* factor, bool inModel, bool fittedOnly) const;
    bool IsResponseAvailable(const std::string& response, bool fittedOnly) const;
    /// A factor or a response of this name that may be plotted.
    bool IsVariableAvailable(const std::string& name) const;
    /// By the factor's index.
    bool IsInAnyModel(int factorIndex) const;
    /// The terms of all models together. Never null.
    std::shared_ptr<TermInfo> CreateCompleteModel() const;

private:
    const Investigation* investigation_;
    const ModelQueries* queries_;
};

/// Counts that several subsystems share.
class KVOPT_EXPORT MVAUtilities {
public:
    MVAUtilities() = delete;

    /// How many qualitative factors the models use; 0 without an investigation.
    static int CountQualFac(const Investigation* investigation);
};

/// Predicts one response after the other; here only asked what its predictions can say.
class KVOPT_EXPORT SuperResponsePredictor {
public:
    explicit SuperResponsePredictor(const Investigation* investigation);

    /// The one-based index of a response of any kind, 0 for an unknown name.
    int GetResponseIndex(const std::string& name) const;
    void SetResponse(int responseIndex) { response_ = responseIndex; }
    /// 2 when intervals can be told; 0 before SetResponse().
    int GetConfidenceDataType() const;

private:
    const Investigation* investigation_;
    int response_ = 0;
};

/// The power of a design.
class KVOPT_EXPORT PowerCalculator {
public:
    PowerCalculator() = delete;

    /// False without an investigation.
    static bool CanCalculatePower(const Investigation* investigation);
};

}  // namespace kvopt

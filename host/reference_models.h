#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/mixture.h"
#include "host/model_term.h"
#include "kvopt/host/model_fit.h"
#include "kvopt/host/study_data.h"
#include "kvopt/study/fit_info.h"
#include "kvopt/study/model_queries.h"

namespace kvopt {

class ReferenceModels;

/// The fit of one response; of a derived or combined one that of its sources together.
class ReferenceFitInfo final : public FitInfo {
public:
    ReferenceFitInfo(const ReferenceModels& models, std::size_t response)
        : models_(models), response_(response) {}

    bool IsFactorAvailable(const FactorClass* factor, const ResponseEx* response) const override;
    bool IsResponseAvailable(const std::string& response, bool fitted) const override;
    bool IsFitted() const override { return true; }

private:
    const ReferenceModels& models_;
    std::size_t response_;
};

/// What the models of a reference study know. Responses and factors are told by their zero-based
/// place in the record.
class ReferenceModels final : public ModelQueries {
public:
    /// Both arguments outlive the object.
    ReferenceModels(const Investigation* study, const StudyData& data);
    ~ReferenceModels() override;

    bool HasModel() const override;
    CFitMethod::FitMethod GetFitMethod(bool selectedOnly) const override;
    int GetUsedCount(CEVar which, int limit) const override;
    bool IsFactorAvailable(const FactorClass* factor, bool inModel, bool fittedOnly) const override;
    bool IsResponseAvailable(const std::string& response, bool fittedOnly) const override;
    bool IsInAnyModel(int factorIndex) const override;
    std::shared_ptr<TermInfo> CreateCompleteModel() const override;
    int GetConfidenceDataType(int responseIndex) const override;
    bool CanCalculatePower() const override;

    /// The fit of an ordinary response, null when it has none.
    const ModelFit* Fit(std::size_t response) const { return fits_[response].get(); }
    const ModelFit* Fit(const std::string& response) const;
    /// Null for a response that is not fitted.
    const FitInfo* Info(const std::string& response) const;
    std::vector<const FitInfo*> Infos() const;

    /// Whether the models of a response, its own or those of its sources, offer the factor.
    bool ResponseOffers(std::size_t response, const FactorClass* factor) const;
    bool IsFitted(std::size_t response) const;
    /// A term of the response's own model names the factor.
    bool Uses(std::size_t response, std::size_t factor) const;

private:
    /// The ordinary responses behind a response: itself, or its sources.
    std::vector<std::size_t> Sources(std::size_t response) const;
    /// The place of a response, or their number for an unknown name.
    std::size_t Find(const std::string& response) const;

    const StudyData& data_;
    bool hasAnyModel_;  ///< whether a response is to have a model, fitted or not
    std::unordered_map<std::string, std::size_t> places_;
    std::vector<std::unique_ptr<ModelFit>> fits_;
    std::vector<std::set<std::size_t>> used_;  ///< factors of each response's own model
    std::vector<std::unique_ptr<FitInfo>> infos_;
};

}  // namespace kvopt

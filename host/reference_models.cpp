#include "host/reference_models.h"

#include <algorithm>

#include "kvopt/study/factor_class.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/variables.h"

namespace kvopt {
namespace {

/// What predictions with intervals are told by.
constexpr int kIntervals = 2;

constexpr const char* kConstantTerm = "Constant";

}  // namespace

bool ReferenceFitInfo::IsFactorAvailable(const FactorClass* factor,
                                         const ResponseEx* /*response*/) const {
    return models_.ResponseOffers(response_, factor);
}

bool ReferenceFitInfo::IsResponseAvailable(const std::string& response, bool fitted) const {
    return models_.IsResponseAvailable(response, fitted);
}

ReferenceModels::ReferenceModels(const Investigation* study, const StudyData& data)
    : ModelQueries(study),
      data_(data),
      hasAnyModel_(std::any_of(data.responses.begin(), data.responses.end(),
                               [](const StudyResponse& response) { return response.hasModel; })) {
    for (const StudyResponse& response : data.responses) {
        std::set<std::size_t> used;
        for (const ModelTerm& term : ModelTerms(data, response)) {
            used.insert(term.begin(), term.end());
        }
        places_.emplace(response.name, used_.size());
        used_.push_back(std::move(used));
        auto fit = response.hasModel ? std::make_unique<ModelFit>(data, response) : nullptr;
        fits_.push_back(fit != nullptr && fit->IsFitted() ? std::move(fit) : nullptr);
    }
    for (std::size_t r = 0; r < data.responses.size(); ++r) {
        infos_.push_back(IsFitted(r) ? std::make_unique<ReferenceFitInfo>(*this, r) : nullptr);
    }
}

ReferenceModels::~ReferenceModels() = default;

std::size_t ReferenceModels::Find(const std::string& response) const {
    const auto found = places_.find(response);
    return found == places_.end() ? data_.responses.size() : found->second;
}

std::vector<std::size_t> ReferenceModels::Sources(std::size_t response) const {
    if (data_.responses[response].type == ResponseEx::Regular) {
        return {response};
    }
    std::vector<std::size_t> sources;
    for (const std::string& source : data_.responses[response].derivedFrom) {
        sources.push_back(Find(source));
    }
    return sources;
}

bool ReferenceModels::Uses(std::size_t response, std::size_t factor) const {
    return used_[response].count(factor) > 0;
}

bool ReferenceModels::IsFitted(std::size_t response) const {
    const std::vector<std::size_t> sources = Sources(response);
    return std::all_of(sources.begin(), sources.end(),
                       [this](std::size_t source) { return fits_[source] != nullptr; });
}

bool ReferenceModels::ResponseOffers(std::size_t response, const FactorClass* factor) const {
    if (factor == nullptr || factor->factorValue.type == CEType::Filler) {
        return false;
    }
    if (factor->IsMixture() || data_.responses[response].type == ResponseEx::External) {
        return true;
    }
    const std::vector<std::size_t> sources = Sources(response);
    return std::any_of(sources.begin(), sources.end(), [&](std::size_t source) {
        return Uses(source, static_cast<std::size_t>(factor->index - 1));
    });
}

const ModelFit* ReferenceModels::Fit(const std::string& response) const {
    const std::size_t place = Find(response);
    return place < fits_.size() ? fits_[place].get() : nullptr;
}

const FitInfo* ReferenceModels::Info(const std::string& response) const {
    const std::size_t place = Find(response);
    return place < infos_.size() ? infos_[place].get() : nullptr;
}

std::vector<const FitInfo*> ReferenceModels::Infos() const {
    std::vector<const FitInfo*> infos;
    for (const auto& info : infos_) {
        if (info != nullptr) {
            infos.push_back(info.get());
        }
    }
    return infos;
}

bool ReferenceModels::HasModel() const {
    return std::any_of(fits_.begin(), fits_.end(), [](const auto& fit) { return fit != nullptr; });
}

CFitMethod::FitMethod ReferenceModels::GetFitMethod(bool selectedOnly) const {
    std::vector<std::string> selected;
    if (selectedOnly) {
        GetInvestigation()->GetSelectedResponses(selected, SelectResponseBase::Extended);
    }
    std::set<std::size_t> inUse;
    for (const std::string& response : selected) {
        const std::size_t place = Find(response);
        if (place < data_.responses.size()) {
            const std::vector<std::size_t> sources = Sources(place);
            inUse.insert(sources.begin(), sources.end());
        }
    }
    // A selection without a fit says nothing about the method; all responses then do.
    const bool isAnyInUse = std::any_of(inUse.begin(), inUse.end(), [this](std::size_t response) {
        return fits_[response] != nullptr;
    });
    auto method = CFitMethod::NotFitted;
    for (std::size_t r = 0; r < fits_.size(); ++r) {
        if (fits_[r] == nullptr || (isAnyInUse && inUse.count(r) == 0)) {
            continue;
        }
        if (data_.responses[r].model.intercept) {
            return CFitMethod::LeastSquares;
        }
        method = CFitMethod::MixtureModel;
    }
    return method;
}

bool ReferenceModels::IsFactorAvailable(const FactorClass* factor, bool inModel,
                                        bool fittedOnly) const {
    if (!hasAnyModel_) {
        return ModelQueries::IsFactorAvailable(factor, inModel, fittedOnly);
    }
    if (factor == nullptr || factor->index < 1 ||
        factor->index > static_cast<int>(data_.factors.size())) {
        return false;
    }
    if (!inModel) {
        return true;
    }
    if (factor->factorValue.type == CEType::Filler) {
        return false;
    }
    if (factor->IsMixture()) {
        return !fittedOnly || HasModel();
    }
    const auto place = static_cast<std::size_t>(factor->index - 1);
    for (std::size_t r = 0; r < used_.size(); ++r) {
        if (Uses(r, place) && (!fittedOnly || fits_[r] != nullptr)) {
            return true;
        }
    }
    return false;
}

int ReferenceModels::GetUsedCount(CEVar which, int limit) const {
    if (!hasAnyModel_) {
        return ModelQueries::GetUsedCount(which, limit);
    }
    int count = 0;
    for (const FactorClass* factor : GetInvestigation()->GetVariables()->GetAllFactors()) {
        const bool isKind =
            which == CEVar::AllFactors || (which == CEVar::MixtureFactors) == factor->IsMixture();
        if (count < limit && isKind && IsFactorAvailable(factor, true, false)) {
            ++count;
        }
    }
    return count;
}

bool ReferenceModels::IsResponseAvailable(const std::string& response, bool fittedOnly) const {
    if (!hasAnyModel_) {
        return ModelQueries::IsResponseAvailable(response, fittedOnly);
    }
    const std::size_t place = Find(response);
    if (place == data_.responses.size()) {
        return false;
    }
    if (fittedOnly) {
        return IsFitted(place);
    }
    const std::vector<std::size_t> sources = Sources(place);
    return std::all_of(sources.begin(), sources.end(),
                       [this](std::size_t source) { return data_.responses[source].hasModel; });
}

bool ReferenceModels::IsInAnyModel(int factorIndex) const {
    if (!hasAnyModel_) {
        return ModelQueries::IsInAnyModel(factorIndex);
    }
    return std::any_of(used_.begin(), used_.end(), [&](const std::set<std::size_t>& used) {
        return factorIndex > 0 && used.count(static_cast<std::size_t>(factorIndex - 1)) > 0;
    });
}

std::shared_ptr<TermInfo> ReferenceModels::CreateCompleteModel() const {
    std::vector<std::string> names;
    // Readers skip the first term unless the method has no constant term.
    if (GetFitMethod(true) != CFitMethod::MixtureModel) {
        names.emplace_back(kConstantTerm);
    }
    std::set<ModelTerm> known;
    for (const StudyResponse& response : data_.responses) {
        for (const ModelTerm& term : ModelTerms(data_, response)) {
            if (known.insert(term).second) {
                names.push_back(TermName(data_, term));
            }
        }
    }
    return std::make_shared<TermInfo>(std::move(names));
}

int ReferenceModels::GetConfidenceDataType(int responseIndex) const {
    if (responseIndex < 1 || responseIndex > static_cast<int>(fits_.size())) {
        return 0;
    }
    const ModelFit* fit = fits_[static_cast<std::size_t>(responseIndex - 1)].get();
    return fit != nullptr && fit->ResidualDegreesOfFreedom() > 0 ? kIntervals : 0;
}

bool ReferenceModels::CanCalculatePower() const {
    return std::any_of(fits_.begin(), fits_.end(), [](const auto& fit) {
        return fit != nullptr && fit->ResidualDegreesOfFreedom() > 0;
    });
}

}  // namespace kvopt

#include "host/reference_variables.h"

#include <algorithm>

#include "host/model_matrix.h"
#include "host/model_term.h"
#include "kvopt/stores/configuration_section.h"
#include "kvopt/study/investigation.h"

namespace kvopt {
namespace {

/// Where the block effect is random, "Random" is a legal setting beside the blocks.
class BlockFactor final : public FactorClass {
public:
    BlockFactor(const Investigation* study, const std::string& factorName,
                std::vector<std::string> settings)
        : FactorClass(factorName, std::move(settings)), study_(study) {}

    bool LegalSetting(const std::string& setting) const override {
        if (setting == kRandomBlock) {
            const auto section = study_->GetInvestigationSettings(kBlockingSection, true);
            if (!section->ReadKeyOr(kFixedEffectKey, true)) {
                return true;
            }
        }
        return FactorClass::LegalSetting(setting);
    }

private:
    const Investigation* study_;
};

std::unique_ptr<FactorClass> MakeFactor(const Investigation* study, const StudyFactor& data) {
    std::unique_ptr<FactorClass> factor;
    if (HasListedSettings(data)) {
        std::vector<std::string> settings;
        std::vector<int> included;
        for (const StudySetting& setting : data.settings) {
            settings.push_back(setting.name);
            if (setting.included) {
                included.push_back(static_cast<int>(settings.size()));
            }
        }
        if (data.name == kBlockFactorName) {
            factor = std::make_unique<BlockFactor>(study, data.name, std::move(settings));
        } else {
            factor = std::make_unique<FactorClass>(data.name, std::move(settings), data.type);
        }
        factor->factorValue.included = std::move(included);
        if (!IsQualitative(data)) {
            factor->low = LowOf(data);
            factor->high = HighOf(data);
        }
    } else {
        factor = std::make_unique<FactorClass>(data.name, data.low, data.high, data.type);
    }
    factor->units = data.unit;
    factor->abbreviation = data.abbreviation;
    factor->factorValue.use = data.use;
    factor->precision = data.precision;
    return factor;
}

/// One row for each bound: a coefficient for each factor, then the number that their sum must not
/// exceed.
std::unique_ptr<FMatrix> ConstraintMatrix(const StudyData& data) {
    if (data.constraints.empty()) {
        return nullptr;
    }
    auto matrix = std::make_unique<FMatrix>();
    matrix->columns = static_cast<int>(data.factors.size()) + 1;
    for (const StudyConstraint& constraint : data.constraints) {
        for (const auto& [bound, sign] :
             {std::pair(constraint.high, 1.0), std::pair(constraint.low, -1.0)}) {
            if (bound == kNotSet) {
                continue;
            }
            for (const StudyFactor& factor : data.factors) {
                const auto found = constraint.coefficients.find(factor.name);
                const double coefficient =
                    found == constraint.coefficients.end() ? 0.0 : found->second;
                matrix->values.push_back(static_cast<float>(sign * coefficient));
            }
            matrix->values.push_back(static_cast<float>(sign * bound));
            ++matrix->rows;
        }
    }
    return matrix;
}

}  // namespace

ReferenceVariables::ReferenceVariables(const Investigation* study, const StudyData& data,
                                       const Mixture& mixture)
    : data_(data), mixture_(mixture), constraints_(ConstraintMatrix(data)) {
    for (const StudyFactor& factor : data.factors) {
        factors_.push_back(MakeFactor(study, factor));
        FactorClass* added = factors_.back().get();
        added->index = static_cast<int>(factors_.size());
        byName_.emplace(added->name, added);
        byAbbreviation_.emplace(added->abbreviation, added);
    }
    for (const StudyResponse& response : data.responses) {
        if (response.type == ResponseEx::Regular) {
            responses_.push_back(std::make_unique<ResponseClass>(response.name, response.unit));
        }
    }
}

ReferenceVariables::~ReferenceVariables() = default;

std::vector<FactorClass*> ReferenceVariables::GetAllFactors() const {
    std::vector<FactorClass*> factors;
    factors.reserve(factors_.size());
    for (const auto& factor : factors_) {
        factors.push_back(factor.get());
    }
    return factors;
}

std::vector<ResponseClass*> ReferenceVariables::GetAllResponses() const {
    std::vector<ResponseClass*> responses;
    responses.reserve(responses_.size());
    for (const auto& response : responses_) {
        responses.push_back(response.get());
    }
    return responses;
}

const FactorClass* ReferenceVariables::GetIndexFactor(int index) const {
    return index < 1 || index > static_cast<int>(factors_.size())
               ? nullptr
               : factors_[static_cast<std::size_t>(index - 1)].get();
}

std::string ReferenceVariables::GetFactor(int index) const {
    const FactorClass* factor = GetIndexFactor(index);
    return factor == nullptr ? std::string() : factor->name;
}

FactorClass* ReferenceVariables::GetFactor(const std::string& name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

FactorClass* ReferenceVariables::GetFactorFromAbbr(const std::string& abbreviation) const {
    const auto found = byAbbreviation_.find(abbreviation);
    return found == byAbbreviation_.end() ? nullptr : found->second;
}

bool ReferenceVariables::IstrueFiller() const {
    return mixture_.HasTrueFiller();
}

FMatrix* ReferenceVariables::GetConstraints() const {
    return constraints_.get();
}

std::size_t ReferenceVariables::FindPart(const std::string& name) const {
    const auto found = byName_.find(name);
    if (found == byName_.end()) {
        return data_.factors.size();
    }
    const auto place = static_cast<std::size_t>(found->second->index - 1);
    return mixture_.IsPart(place) ? place : data_.factors.size();
}

double ReferenceVariables::GetPseudoComponent(const FactorClass* factor, double value,
                                              bool toPseudo) const {
    const std::size_t part = factor == nullptr ? data_.factors.size() : FindPart(factor->GetName());
    if (part == data_.factors.size() || value == kNotSet) {
        return value;
    }
    return toPseudo ? mixture_.ToPseudo(part, value) : mixture_.FromPseudo(part, value);
}

double ReferenceVariables::GetMixtureTotal() const {
    return data_.mixtureTotal;
}

double ReferenceVariables::GetMixtureReferenceRegulated(const std::string& factor,
                                                        const std::string& fixedFactor,
                                                        double fixedValue,
                                                        bool originalUnits) const {
    const std::size_t part = FindPart(factor);
    if (part == data_.factors.size()) {
        return kNotSet;
    }
    std::vector<double> blend = mixture_.Reference();
    const std::size_t fixedPart = FindPart(fixedFactor);
    if (fixedPart != data_.factors.size() && fixedValue != kNotSet) {
        mixture_.Adjust(blend, fixedPart, fixedValue);
    }
    return originalUnits ? blend[part] : mixture_.ToPseudo(part, blend[part]);
}

ReferenceResponses::ReferenceResponses(const StudyData& data, const Variables& variables) {
    const std::vector<ResponseClass*> ordinary = variables.GetAllResponses();
    auto next = ordinary.begin();
    for (const StudyResponse& response : data.responses) {
        ResponseClass* record = nullptr;
        if (response.type == ResponseEx::Regular) {
            record = *next++;
        } else {
            records_.push_back(std::make_unique<ResponseClass>(response.name, response.unit));
            record = records_.back().get();
        }
        auto entry = std::make_unique<ResponseEx>(record);
        entry->type = response.type;
        entry->lowLimit = response.lowLimit;
        entry->highLimit = response.highLimit;
        entry->target = response.target;
        pointers_.push_back(entry.get());
        byName_.emplace(response.name, entry.get());
        responses_.push_back(std::move(entry));
    }
}

ReferenceResponses::~ReferenceResponses() = default;

ResponseEx* ReferenceResponses::GetResponse(const std::string& name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

bool ReferenceConstraints::HasConstraints(std::string_view factor) const {
    return std::any_of(data_.constraints.begin(), data_.constraints.end(),
                       [&](const StudyConstraint& constraint) {
                           const auto found = constraint.coefficients.find(std::string(factor));
                           return found != constraint.coefficients.end() && found->second != 0.0;
                       });
}

}  // namespace kvopt

#include "kvopt/study/variables.h"

#include <algorithm>

namespace kvopt {

namespace {

bool IsPart(const FactorClass& factor) {
    return factor.factorValue.type == CEType::Formulation ||
           factor.factorValue.type == CEType::Filler;
}

std::string NameAt(const std::vector<FactorClass*>& factors, int index) {
    return index >= 1 && index <= static_cast<int>(factors.size())
               ? factors[static_cast<std::size_t>(index) - 1]->name
               : std::string();
}

template <class Predicate>
bool AnyFactor(const Variables& variables, Predicate predicate) {
    const std::vector<FactorClass*> factors = variables.GetAllFactors();
    return std::any_of(factors.begin(), factors.end(),
                       [&](const FactorClass* factor) { return predicate(*factor); });
}

}  // namespace

Variables::~Variables() = default;

int Variables::GetCount(CEVar which) const {
    int count = 0;
    for (const FactorClass* factor : GetAllFactors()) {
        const bool counts =
            which == CEVar::AllFactors || IsPart(*factor) == (which == CEVar::MixtureFactors);
        count += counts ? 1 : 0;
    }
    return count;
}

std::vector<FactorClass*> Variables::GetAllDesignFactors(bool includeBlock) const {
    std::vector<FactorClass*> result;
    for (FactorClass* factor : GetAllFactors()) {
        if (factor->IsDesignFactor() || (includeBlock && factor->name == kBlockFactorName)) {
            result.push_back(factor);
        }
    }
    return result;
}

int Variables::GetDesignFactorCount(bool includeBlock) const {
    return static_cast<int>(GetAllDesignFactors(includeBlock).size());
}

std::string Variables::GetFactor(int index) const {
    return NameAt(GetAllFactors(), index);
}

std::string Variables::GetDesignFactor(int index) const {
    return NameAt(GetAllDesignFactors(false), index);
}

const FactorClass* Variables::GetIndexFactor(int index) const {
    const std::vector<FactorClass*> factors = GetAllFactors();
    return index >= 1 && index <= static_cast<int>(factors.size())
               ? factors[static_cast<std::size_t>(index) - 1]
               : nullptr;
}

FactorClass* Variables::GetFactor(const std::string& name) const {
    for (FactorClass* factor : GetAllFactors()) {
        if (factor->name == name) {
            return factor;
        }
    }
    return nullptr;
}

FactorClass* Variables::GetFactor(const std::string& name) {
    return static_cast<const Variables*>(this)->GetFactor(name);
}

FactorClass* Variables::GetFactorFromAbbr(const std::string& abbreviation) const {
    for (FactorClass* factor : GetAllFactors()) {
        const std::string& shortName =
            factor->abbreviation.empty() ? factor->name : factor->abbreviation;
        if (shortName == abbreviation) {
            return factor;
        }
    }
    return nullptr;
}

std::string Variables::GetNameFromAbbr(const std::string& abbreviation) const {
    const FactorClass* factor = GetFactorFromAbbr(abbreviation);
    return factor != nullptr ? factor->name : std::string();
}

bool Variables::IsFactor(const std::string& name) const {
    return GetFactor(name) != nullptr;
}

bool Variables::IsFactorQualitative(const std::string& name) const {
    return GetType(name) == CEType::Qualitative;
}

bool Variables::IsMixture(const std::string& name) const {
    const FactorClass* factor = GetFactor(name);
    return factor != nullptr && factor->IsMixture();
}

int Variables::GetMixture() const {
    return GetCount(CEVar::MixtureFactors);
}

bool Variables::IsAnyQualitative() const {
    return AnyFactor(*this, [](const FactorClass& factor) { return factor.IsQualitative(); });
}

bool Variables::IsAnyFiller() const {
    return AnyFactor(
        *this, [](const FactorClass& factor) { return factor.factorValue.type == CEType::Filler; });
}

bool Variables::IstrueFiller() const {
    return IsAnyFiller();
}

bool Variables::LegalSetting(const std::string& factor, const std::string& setting) const {
    const FactorClass* found = GetFactor(factor);
    return found != nullptr && found->LegalSetting(setting);
}

std::string Variables::GetSetting(const std::string& factor, int index) const {
    const FactorClass* found = GetFactor(factor);
    return found != nullptr ? found->GetSetting(index) : std::string();
}

std::string Variables::GetUnits(const std::string& name) const {
    if (const FactorClass* factor = GetFactor(name)) {
        return factor->units;
    }
    for (const ResponseClass* response : GetAllResponses()) {
        if (response->name == name) {
            return response->units;
        }
    }
    return {};
}

CEUse::EUse Variables::GetUse(const std::string& factor) const {
    const FactorClass* found = GetFactor(factor);
    return found != nullptr ? found->factorValue.use : FactorValue().use;
}

CEType::EType Variables::GetType(const std::string& factor) const {
    const FactorClass* found = GetFactor(factor);
    return found != nullptr ? found->factorValue.type : FactorValue().type;
}

FMatrix* Variables::GetConstraints() const {
    return nullptr;
}

double Variables::GetPseudoComponent(const FactorClass* /*factor*/, double value,
                                     bool /*toPseudo*/) const {
    return value;
}

double Variables::GetMixtureTotal() const {
    return 1.0;
}

double Variables::GetMixtureReferenceRegulated(const std::string& factor,
                                               const std::string& fixedFactor, double fixedValue,
                                               bool /*pseudo*/) const {
    // The reference mixture is the middle of every range, in proportion.
    double sum = 0.0;
    double own = kNotSet;
    double rest = GetMixtureTotal();
    for (const FactorClass* part : GetAllFactors()) {
        if (!IsPart(*part)) {
            continue;
        }
        if (part->name == fixedFactor && fixedValue != kNotSet) {
            if (factor == fixedFactor) {
                return fixedValue;
            }
            rest -= fixedValue;
            continue;
        }
        const double center = part->GetCenterpoint(true, kNotSet, kNotSet);
        sum += center != kNotSet ? center : 0.0;
        own = part->name == factor ? center : own;
    }
    return own == kNotSet || sum == 0.0 ? kNotSet : own * rest / sum;
}

}  // namespace kvopt

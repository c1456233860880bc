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

FactorClass* FindName(const std::vector<FactorClass*>& factors, const std::string& name) {
    const auto found = std::find_if(factors.begin(), factors.end(), [&](const FactorClass* factor) {
        return factor->name == name;
    });
    return found != factors.end() ? *found : nullptr;
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
    return FindName(GetAllFactors(), name);
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
                                               bool originalUnits) const {
    // Each part goes the same way between its limits: x = low + t (high - low), with t such that
    // the parts sum to the total. A part without limits may be anything from 0 to the total.
    const double total = GetMixtureTotal();
    double lowSum = 0.0;
    double highSum = 0.0;
    std::vector<FactorClass*> mixture = GetAllFactors();
    mixture.erase(std::remove_if(mixture.begin(), mixture.end(),
                                 [](const FactorClass* part) { return !IsPart(*part); }),
                  mixture.end());
    const auto lowOf = [](const FactorClass& part) {
        const double limit = part.GetLow(true);
        return limit != kNotSet ? limit : 0.0;
    };
    const auto highOf = [&](const FactorClass& part) {
        const double limit = part.GetHigh(true);
        return limit != kNotSet ? limit : total;
    };
    for (const FactorClass* part : mixture) {
        lowSum += lowOf(*part);
        highSum += highOf(*part);
    }
    const double way = highSum > lowSum ? (total - lowSum) / (highSum - lowSum) : 0.0;
    const auto reference = [&](const FactorClass& part) {
        return lowOf(part) + std::clamp(way, 0.0, 1.0) * (highOf(part) - lowOf(part));
    };
    const FactorClass* asked = FindName(mixture, factor);
    if (asked == nullptr) {
        return kNotSet;
    }
    double value = reference(*asked);
    const FactorClass* fixed = fixedValue != kNotSet ? FindName(mixture, fixedFactor) : nullptr;
    if (fixed == asked) {
        value = fixedValue;
    } else if (fixed != nullptr) {
        const double others = total - reference(*fixed);
        value = others > 0.0 ? value * (total - fixedValue) / others
                             : (total - fixedValue) / static_cast<double>(mixture.size() - 1);
    }
    return originalUnits ? value : GetPseudoComponent(asked, value, true);
}

}  // namespace kvopt

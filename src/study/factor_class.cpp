#include "kvopt/study/factor_class.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "kvopt/text.h"
#include "study_texts.h"

namespace kvopt {

namespace {

/// The levels in use in ascending order; empty for a factor without levels.
std::vector<double> Levels(const FactorClass& factor) {
    std::vector<double> levels;
    if (CEType::IsList(factor.factorValue.type) && !factor.IsQualitative()) {
        for (const int setting : factor.GetIncludedSettings()) {
            double level = kNotSet;
            if (KvString::ToDouble(factor.GetSetting(setting), level)) {
                levels.push_back(level);
            }
        }
        std::sort(levels.begin(), levels.end());
    }
    return levels;
}

}  // namespace

int FactorValue::GetSettingIndex(const std::string& setting) const {
    const auto found = std::find(settings.begin(), settings.end(), setting);
    return found != settings.end() ? static_cast<int>(found - settings.begin()) + 1 : 0;
}

FactorClass::FactorClass(std::string factorName, double lowLimit, double highLimit,
                         CEType::EType type)
    : ResponseClass(std::move(factorName)), low(lowLimit), high(highLimit) {
    factorValue.type = type;
}

FactorClass::FactorClass(std::string factorName, std::vector<std::string> settings,
                         CEType::EType type)
    : ResponseClass(std::move(factorName)) {
    factorValue.type = type;
    SetSettings(std::move(settings));
}

FactorClass::~FactorClass() = default;

void FactorClass::SetSettings(std::vector<std::string> settings) {
    factorValue.settings = std::move(settings);
    factorValue.included.clear();
    settingCount = static_cast<int>(factorValue.settings.size());
}

int FactorClass::GetFactorKind() const {
    return 1;
}

bool FactorClass::IsDesignFactor() const {
    return factorValue.use == CEUse::Controlled && name != kBlockFactorName;
}

double FactorClass::GetLow(bool originalUnits) const {
    const std::vector<double> levels = low == kNotSet ? Levels(*this) : std::vector<double>();
    const double limit = levels.empty() ? low : levels.front();
    return originalUnits || limit == kNotSet ? limit : -1.0;
}

double FactorClass::GetHigh(bool originalUnits) const {
    const std::vector<double> levels = high == kNotSet ? Levels(*this) : std::vector<double>();
    const double limit = levels.empty() ? high : levels.back();
    return originalUnits || limit == kNotSet ? limit : 1.0;
}

double FactorClass::GetCenterpoint(bool originalUnits, double lowLimit, double highLimit) const {
    const double from = lowLimit != kNotSet ? lowLimit : GetLow(originalUnits);
    const double to = highLimit != kNotSet ? highLimit : GetHigh(originalUnits);
    if (from == kNotSet || to == kNotSet) {
        return kNotSet;
    }
    const double middle = from + (to - from) / 2.0;
    const std::vector<double> levels = originalUnits ? Levels(*this) : std::vector<double>();
    const auto isNearer = [middle](double a, double b) {
        return std::fabs(a - middle) < std::fabs(b - middle);
    };
    return levels.empty() ? middle : *std::min_element(levels.begin(), levels.end(), isNearer);
}

std::string FactorClass::GetSetting(int settingIndex) const {
    const auto position = static_cast<std::size_t>(settingIndex) - 1;
    return settingIndex >= 1 && position < factorValue.settings.size()
               ? factorValue.settings[position]
               : std::string();
}

std::string FactorClass::GetNameWithSetting(int settingIndex) const {
    const std::string setting = GetSetting(settingIndex);
    return setting.empty() ? name : Format(texts::kStudyNameWithSetting, name, setting);
}

std::vector<int> FactorClass::GetIncludedSettings() const {
    if (!factorValue.included.empty()) {
        return factorValue.included;
    }
    std::vector<int> all(factorValue.settings.size());
    std::iota(all.begin(), all.end(), 1);
    return all;
}

bool FactorClass::LegalSetting(const std::string& setting) const {
    if (IsQualitative()) {
        const std::vector<int> included = GetIncludedSettings();
        return std::any_of(included.begin(), included.end(),
                           [&](int at) { return GetSetting(at) == setting; });
    }
    double value = kNotSet;
    if (!KvString::ToDouble(setting, value)) {
        return false;
    }
    // An edit shows six digits of a limit, which may lie just outside it.
    const std::string trimmed = KvStdString::Trim(setting);
    const double least = GetLow(true);
    const double most = GetHigh(true);
    const bool aboveLow = least == kNotSet || value >= least || trimmed == KvString::FormatG(least);
    const bool belowHigh = most == kNotSet || value <= most || trimmed == KvString::FormatG(most);
    return aboveLow && belowHigh;
}

bool FactorClass::DoesAnyHaveDistribution(const std::vector<FactorClass*>& factors) {
    return std::any_of(factors.begin(), factors.end(), [](const FactorClass* factor) {
        return factor->precision != kNotSet && factor->precision > 0.0;
    });
}

}  // namespace kvopt

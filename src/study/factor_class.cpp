#include "kvopt/study/factor_class.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "kvopt/text.h"
#include "study_texts.h"

namespace kvopt {

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
    return originalUnits ? low : -1.0;
}

double FactorClass::GetHigh(bool originalUnits) const {
    return originalUnits ? high : 1.0;
}

double FactorClass::GetCenterpoint(bool originalUnits, double lowLimit, double highLimit) const {
    const double from = lowLimit != kNotSet ? lowLimit : GetLow(originalUnits);
    const double to = highLimit != kNotSet ? highLimit : GetHigh(originalUnits);
    if (from == kNotSet || to == kNotSet) {
        return kNotSet;
    }
    const double middle = from + (to - from) / 2.0;
    if (!CEType::IsList(factorValue.type) || !originalUnits) {
        return middle;
    }
    double nearest = middle;
    double distance = HUGE_VAL;
    for (const int setting : GetIncludedSettings()) {
        double level = kNotSet;
        if (KvString::ToDouble(GetSetting(setting), level) &&
            (std::fabs(level - middle) < distance ||
             (std::fabs(level - middle) == distance && level < nearest))) {
            distance = std::fabs(level - middle);
            nearest = level;
        }
    }
    return nearest;
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
    const auto isSetting = [this](auto&& matches) {
        const std::vector<int> included = GetIncludedSettings();
        return std::any_of(included.begin(), included.end(),
                           [&](int at) { return matches(GetSetting(at)); });
    };
    if (IsQualitative()) {
        return isSetting([&](const std::string& own) { return own == setting; });
    }
    double value = kNotSet;
    if (!KvString::ToDouble(setting, value)) {
        return false;
    }
    if (CEType::IsList(factorValue.type)) {
        return isSetting([value](const std::string& text) {
            double level = kNotSet;
            return KvString::ToDouble(text, level) && level == value;
        });
    }
    // An edit shows six digits of a limit, which may lie just outside it.
    const std::string trimmed = KvStdString::Trim(setting);
    const bool aboveLow = low == kNotSet || value >= low || trimmed == KvString::FormatG(low);
    const bool belowHigh = high == kNotSet || value <= high || trimmed == KvString::FormatG(high);
    return aboveLow && belowHigh;
}

bool FactorClass::DoesAnyHaveDistribution(const std::vector<FactorClass*>& factors) {
    return std::any_of(factors.begin(), factors.end(), [](const FactorClass* factor) {
        return factor->precision != kNotSet && factor->precision > 0.0;
    });
}

}  // namespace kvopt

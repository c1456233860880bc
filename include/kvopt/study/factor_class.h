#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/response.h"
#include "kvopt/study/variable_enums.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

/// The name of the block entry among the factors of a blocked study.
inline constexpr const char* kBlockFactorName = "$BlockV";

/// The kind of a factor, its use, and its settings.
class KVOPT_EXPORT FactorValue {
public:
    CEType::EType type = CEType::Quantitative;
    CEUse::EUse use = CEUse::Controlled;

    /// Names of a qualitative factor's settings, or the levels of a factor with levels as text.
    std::vector<std::string> settings;
    /// One-based indices of the settings in use, in order; empty when all are.
    std::vector<int> included;

    /// The one-based index of a setting by its exact name, 0 for an unknown one.
    int GetSettingIndex(const std::string& setting) const;
};

/// A factor of the study: a record that the host fills. The virtual operations answer from the
/// record; a host that knows better overrides them.
class KVOPT_EXPORT FactorClass : public ResponseClass {
public:
    FactorClass() = default;
    /// A number within a range.
    FactorClass(std::string factorName, double lowLimit, double highLimit,
                CEType::EType type = CEType::Quantitative);
    /// Settings by name, or levels by their text.
    FactorClass(std::string factorName, std::vector<std::string> settings,
                CEType::EType type = CEType::Qualitative);
    ~FactorClass() override;
    FactorClass(const FactorClass&) = default;
    FactorClass& operator=(const FactorClass&) = default;

    /// What the host sorts factors by when it orders axes: those of kind 2 come first. 1 unless
    /// overridden.
    virtual int GetFactorKind() const;

    bool IsQualitative() const { return factorValue.type == CEType::Qualitative; }
    /// A formulation factor; the filler is none.
    bool IsMixture() const { return factorValue.type == CEType::Formulation; }
    bool IsConstant() const { return factorValue.use == CEUse::Constant; }
    /// Set by the design: controlled and not the block entry.
    bool IsDesignFactor() const;

    /// The limits of the factor's range, kNotSet for none. With `originalUnits` false they are
    /// those of the coded range, -1 and 1.
    virtual double GetLow(bool originalUnits) const;
    virtual double GetHigh(bool originalUnits) const;
    /// The middle of the range; of a factor with levels the level nearest to it, the lower of two.
    /// `low` and `high` stand in for the factor's own limits unless they are kNotSet. kNotSet
    /// without both limits.
    virtual double GetCenterpoint(bool originalUnits, double low, double high) const;

    /// The name of a setting by its one-based index; empty outside.
    std::string GetSetting(int index) const;
    /// "name(setting)" by the one-based index of the setting; the plain name outside.
    std::string GetNameWithSetting(int index) const;
    /// One-based indices of the settings in use, in order.
    std::vector<int> GetIncludedSettings() const;
    /// Whether a setting lies in the recommended range: one of the settings in use, or a number
    /// within the limits, blanks around it allowed. A limit's own text with six digits is legal.
    virtual bool LegalSetting(const std::string& setting) const;

    /// Whether the settings of any of the factors scatter around what was set.
    static bool DoesAnyHaveDistribution(const std::vector<FactorClass*>& factors);

    /// Replaces the settings and their count; all are in use.
    void SetSettings(std::vector<std::string> settings);

    int index = 0;         ///< one-based index in the model tables
    int settingCount = 0;  ///< how many settings the factor has; kept by SetSettings()
    FactorValue factorValue;
    double low = kNotSet;
    double high = kNotSet;
    double precision = kNotSet;  ///< standard deviation of a setting, in the factor's units
};

}  // namespace kvopt

#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

class ConfigurationSection;

/// One axis of a plot: a factor and the range or the settings shown of it. Axes stand in vectors of
/// shared pointers whose element 0 is empty.
class KVOPT_EXPORT AxisInfo {
public:
    enum AxisError : int {
        NoAxisError = 0,
        NotUsed = 1,        ///< no factor
        NoRange = 2,        ///< a limit is not set
        ReversedRange = 3,  ///< the low limit is not below the high one
        NoSettings = 4,     ///< a qualitative axis without settings
    };

    virtual ~AxisInfo();

    /// 0 when the axis holds exactly this factor name; otherwise below or above 0 as the axis's
    /// name sorts before or after it. A null text counts as empty.
    virtual int Compare(const char* name) const = 0;
    virtual float GetMin() const = 0;
    virtual float GetMax() const = 0;
    /// A new deep copy, owned by the caller.
    virtual AxisInfo* Clone() const = 0;
    virtual const std::string& GetName() const = 0;
    virtual const std::string& GetUnit() const = 0;
    /// Settings of a qualitative axis as one text, names joined by ";".
    virtual const std::string& GetSettings() const = 0;
    virtual bool IsQualitative() const = 0;
    virtual void SetIsQualitative(bool qualitative) = 0;
    virtual void SetMin(float min) = 0;
    virtual void SetMax(float max) = 0;
    virtual void SetName(const std::string& name) = 0;
    virtual void SetUnit(const std::string& unit) = 0;
    virtual void SetRange(float min, float max) = 0;
    /// False when the name is the not-used name or empty.
    virtual bool IsUsed() const = 0;
    /// The name is not empty.
    virtual bool IsDefined() const = 0;
    virtual void SetSettings(const std::string& settings) = 0;
    /// The first fault of the axis.
    virtual AxisError IsLegalAxis() = 0;
    /// Writes the axis straight into `section`, which is the axis's own.
    virtual void WriteSection(ConfigurationSection* section) const = 0;
    /// Reads it back. False, with nothing changed, without the axis's name; any other missing key
    /// leaves its field as it is.
    virtual bool ReadSection(const ConfigurationSection* section) = 0;

    /// The text that marks an empty axis. No factor may bear it.
    static const std::string& GetNotUsedName();
    /// Exactly the not-used name; false for the empty text.
    static bool IsNotUsedName(const std::string& name);
    /// How many settings the settings text holds.
    int NumSettings() const;
    /// The first axis of exactly this name, end() when there is none. Empty elements are passed
    /// over.
    static std::vector<std::shared_ptr<AxisInfo>>::iterator FindFromName(
        std::vector<std::shared_ptr<AxisInfo>>& axes, const std::string& name);
    static std::vector<std::shared_ptr<AxisInfo>>::const_iterator FindFromName(
        const std::vector<std::shared_ptr<AxisInfo>>& axes, const std::string& name);
};

/// The axis record itself. A fresh one has no name, unit or settings, the range kNotSet to kNotSet,
/// and is not qualitative.
class KVOPT_EXPORT AxisInfoImpl final : public AxisInfo {
public:
    AxisInfoImpl() = default;
    ~AxisInfoImpl() override;
    AxisInfoImpl(const AxisInfoImpl&) = default;
    AxisInfoImpl& operator=(const AxisInfoImpl&) = default;

    int Compare(const char* name) const override;
    float GetMin() const override { return min_; }
    float GetMax() const override { return max_; }
    AxisInfo* Clone() const override;
    const std::string& GetName() const override { return name_; }
    const std::string& GetUnit() const override { return unit_; }
    const std::string& GetSettings() const override { return settings_; }
    bool IsQualitative() const override { return qualitative_; }
    void SetIsQualitative(bool qualitative) override { qualitative_ = qualitative; }
    void SetMin(float min) override { min_ = min; }
    void SetMax(float max) override { max_ = max; }
    void SetName(const std::string& name) override { name_ = name; }
    void SetUnit(const std::string& unit) override { unit_ = unit; }
    void SetRange(float min, float max) override;
    bool IsUsed() const override;
    bool IsDefined() const override { return !name_.empty(); }
    void SetSettings(const std::string& settings) override { settings_ = settings; }
    AxisError IsLegalAxis() override;
    void WriteSection(ConfigurationSection* section) const override;
    bool ReadSection(const ConfigurationSection* section) override;

private:
    std::string name_;
    std::string unit_;
    std::string settings_;
    float min_ = kNotSetF;
    float max_ = kNotSetF;
    bool qualitative_ = false;
};

/// Operations on whole vectors of axes.
class KVOPT_EXPORT AxisInfoVector {
public:
    AxisInfoVector() = delete;

    /// Fills `axes` with the entries of `source` (element 0 empty), those of available factors
    /// first, each group in the order that it had. A mixture factor of `availableMixture` counts as
    /// available too. Empty elements come last.
    static void PreferAvailableFactors(std::vector<std::shared_ptr<AxisInfo>>& axes,
                                       const std::vector<std::shared_ptr<AxisInfo>>& source,
                                       const std::set<std::string>& available,
                                       const std::set<std::string>& availableMixture);
};

}  // namespace kvopt

#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"
#include "kvopt/study/enum_helpers.h"

namespace kvopt {

class CComboBox;
class ConfigurationSection;

/// Confidence level, interval type and tolerance proportion of a plot (template 6155). It edits its
/// caller's values in place and owns none of them.
class KVOPT_EXPORT ConfidenceLevelPage : public KvPropertyPage {
public:
    /// The tolerance proportion is the page's own, starts at 95 % and is lost with it.
    ///
    /// With `useLevel` the user may choose no level at all, which sets it to false and leaves the
    /// level alone. Without `intervalType` only the level is shown; unless `levelAlwaysEnabled`,
    /// the first pick of a level then switches the list of levels off, as any interval but
    /// tolerance does.
    ConfidenceLevelPage(CConfLev::ConfLev& level, BasePropertyPageHelper* helper, bool* useLevel,
                        CIntervalType::IntervalType* intervalType, bool levelAlwaysEnabled);
    ConfidenceLevelPage(CConfLev::ConfLev& level, CConfLev::ConfLev& tolerance,
                        BasePropertyPageHelper* helper, bool* useLevel,
                        CIntervalType::IntervalType* intervalType, bool levelAlwaysEnabled);
    ~ConfidenceLevelPage() override;

    bool OnInitDialog() override;
    void Changed() override;
    /// Stores the interval type of an unchanged page too; level and tolerance proportion only of a
    /// changed one.
    bool OnApply() override;

    /// Keeps the values in the child section "ConfidenceLevelPage", which is cleared first. Without
    /// a tolerance proportion (0) the interval type is not written.
    static void WriteSection(ConfigurationSection* section, CConfLev::ConfLev level,
                             CConfLev::ConfLev tolerance, CIntervalType::IntervalType type);
    /// The level alone: neither tolerance proportion (0) nor interval type.
    static void WriteSection(ConfigurationSection* section, CConfLev::ConfLev level);
    /// False without the child section. A key that it lacks keeps the value.
    static bool ReadSection(const ConfigurationSection* section, CConfLev::ConfLev& level,
                            CConfLev::ConfLev& tolerance, CIntervalType::IntervalType& type);
    static bool ReadSection(const ConfigurationSection* section, CConfLev::ConfLev& level);

protected:
    void GetMessageMap(MessageMap& map) override;
    void DoDataExchange(CDataExchange& exchange) override;
    void OnDestroyWindow() override;

private:
    CConfLev::ConfLev* confidenceLevel_;
    CConfLev::ConfLev* toleranceProportion_;
    CConfLev::ConfLev ownTolerance_ = CConfLev::Level95;
    CComboBox* intervalCombo_ = nullptr;
    CComboBox* levelCombo_ = nullptr;
    CComboBox* toleranceCombo_ = nullptr;
    bool* useLevel_;
    CIntervalType::IntervalType* intervalType_;
    bool levelAlwaysEnabled_;
};

}  // namespace kvopt

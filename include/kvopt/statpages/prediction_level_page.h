#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"
#include "kvopt/study/enum_helpers.h"

namespace kvopt {

class CComboBox;
class CControl;
class ConfigurationSection;

/// Interval type, confidence level and tolerance proportion of a prediction (template 6230). It
/// edits its caller's values in place and owns none of them.
class KVOPT_EXPORT PredictionLevelPage : public KvPropertyPage {
public:
    /// With `useLevel` the user may choose no interval at all, which sets it to false and the type
    /// to 0. Whether that entry is shown goes by the type alone.
    PredictionLevelPage(CConfLev::ConfLev& level, CConfLev::ConfLev& tolerance,
                        CIntervalType::IntervalType& type, BasePropertyPageHelper* helper,
                        bool* useLevel);
    ~PredictionLevelPage() override;

    bool OnInitDialog() override;
    /// An unchanged page stores nothing.
    bool OnApply() override;

    /// The handler of the list of intervals.
    virtual void OnCbnSelchangeIntervalTypeCombo();

    /// Keeps the values in the child section "PredictionLevelPage", which is cleared first. Without
    /// a tolerance proportion (0) the interval type is not written.
    static void WriteSection(ConfigurationSection* section, CConfLev::ConfLev level,
                             CConfLev::ConfLev tolerance, CIntervalType::IntervalType type);
    /// False without the child section. A key that it lacks keeps the value.
    static bool ReadSection(const ConfigurationSection* section, CConfLev::ConfLev& level,
                            CConfLev::ConfLev& tolerance, CIntervalType::IntervalType& type);

protected:
    void GetMessageMap(MessageMap& map) override;
    void DoDataExchange(CDataExchange& exchange) override;
    void OnDestroyWindow() override;

    CConfLev::ConfLev ConfidenceLevel() const { return confidenceLevel_; }
    CConfLev::ConfLev ToleranceProportion() const { return toleranceProportion_; }
    CIntervalType::IntervalType IntervalType() const { return intervalType_; }

    // The controls; null without a window.
    CComboBox* IntervalCombo() const { return intervalCombo_; }
    CComboBox* LevelCombo() const { return levelCombo_; }
    CComboBox* ToleranceCombo() const { return toleranceCombo_; }
    /// The text on what an interval means for a simulation; hidden unless a derived page shows it.
    CControl* SafetyMarginsText() const;

private:
    bool* useLevel_;
    CConfLev::ConfLev& confidenceLevel_;
    CConfLev::ConfLev& toleranceProportion_;
    CIntervalType::IntervalType& intervalType_;
    CComboBox* intervalCombo_ = nullptr;
    CComboBox* levelCombo_ = nullptr;
    CComboBox* toleranceCombo_ = nullptr;
};

}  // namespace kvopt

#include "kvopt/statpages/confidence_level_page.h"

#include "kvopt/platform.h"
#include "statpages/level_choice.h"
#include "statpages_texts.h"

namespace kvopt {

namespace {

constexpr int kTemplate = 6155;
constexpr unsigned kHelpTopic = 59;

constexpr int kLevel = 6299;
constexpr int kInterval = 6300;
constexpr int kIntervalLabel = 6302;
constexpr int kTolerance = 6341;
constexpr int kToleranceLabel = 6342;

constexpr const char* kSection = "ConfidenceLevelPage";

}  // namespace

ConfidenceLevelPage::ConfidenceLevelPage(CConfLev::ConfLev& level, BasePropertyPageHelper* helper,
                                         bool* useLevel, CIntervalType::IntervalType* intervalType,
                                         bool levelAlwaysEnabled)
    : ConfidenceLevelPage(level, ownTolerance_, helper, useLevel, intervalType,
                          levelAlwaysEnabled) {}

ConfidenceLevelPage::ConfidenceLevelPage(CConfLev::ConfLev& level, CConfLev::ConfLev& tolerance,
                                         BasePropertyPageHelper* helper, bool* useLevel,
                                         CIntervalType::IntervalType* intervalType,
                                         bool levelAlwaysEnabled)
    : KvPropertyPage(kTemplate, 0, helper, kHelpTopic),
      confidenceLevel_(&level),
      toleranceProportion_(&tolerance),
      useLevel_(useLevel),
      intervalType_(intervalType),
      levelAlwaysEnabled_(levelAlwaysEnabled) {}

ConfidenceLevelPage::~ConfidenceLevelPage() = default;

void ConfidenceLevelPage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    for (const int combo : {kInterval, kLevel, kTolerance}) {
        map.OnSelectionChanged(combo, [this] { Changed(); });
    }
}

void ConfidenceLevelPage::DoDataExchange(CDataExchange& exchange) {
    KvPropertyPage::DoDataExchange(exchange);
    DDX_Control(exchange, kInterval, intervalCombo_);
    DDX_Control(exchange, kLevel, levelCombo_);
    DDX_Control(exchange, kTolerance, toleranceCombo_);
}

void ConfidenceLevelPage::OnDestroyWindow() {
    intervalCombo_ = nullptr;
    levelCombo_ = nullptr;
    toleranceCombo_ = nullptr;
    KvPropertyPage::OnDestroyWindow();
}

bool ConfidenceLevelPage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    SelectLevel(*levelCombo_, *confidenceLevel_);
    SelectLevel(*toleranceCombo_, *toleranceProportion_);
    if (useLevel_ != nullptr) {
        const int none = levelCombo_->AddString(texts::kLevelsNoLevel.Wide());
        if (!*useLevel_) {
            levelCombo_->SetCurSel(none);
        }
    }
    if (intervalType_ == nullptr) {
        for (const int number : {kInterval, kIntervalLabel, kTolerance, kToleranceLabel}) {
            GetDlgItem(number)->ShowWindow(false);
        }
        return true;
    }
    if (*intervalType_ == CIntervalType::Tolerance) {
        intervalCombo_->SetCurSel(kToleranceEntry);
        toleranceCombo_->EnableWindow(true);
        return true;
    }
    intervalCombo_->SetCurSel(*intervalType_ == CIntervalType::Prediction ? 1 : 0);
    if (!levelAlwaysEnabled_) {
        levelCombo_->EnableWindow(false);
    }
    return true;
}

void ConfidenceLevelPage::Changed() {
    KvPropertyPage::Changed();
    if (intervalCombo_ == nullptr) {
        return;
    }
    const bool isTolerance = intervalCombo_->GetCurSel() == kToleranceEntry;
    toleranceCombo_->EnableWindow(isTolerance);
    if (!levelAlwaysEnabled_) {
        levelCombo_->EnableWindow(isTolerance);
    }
}

bool ConfidenceLevelPage::OnApply() {
    if (IsChanged() && UpdateData(true)) {
        const bool isLevel = useLevel_ == nullptr || levelCombo_->GetCurSel() != kNoneEntry;
        if (useLevel_ != nullptr) {
            *useLevel_ = isLevel;
        }
        if (isLevel) {
            *confidenceLevel_ = ChosenLevel(*levelCombo_, CConfLev::Level90);
        }
        *toleranceProportion_ = ChosenLevel(*toleranceCombo_, CConfLev::Level90);
    }
    if (intervalType_ != nullptr && intervalCombo_ != nullptr) {
        *intervalType_ = ChosenInterval(*intervalCombo_, CIntervalType::Confidence);
    }
    return KvPropertyPage::OnApply();
}

void ConfidenceLevelPage::WriteSection(ConfigurationSection* section, CConfLev::ConfLev level,
                                       CConfLev::ConfLev tolerance,
                                       CIntervalType::IntervalType type) {
    WriteLevels(section, kSection, level, tolerance, type);
}

void ConfidenceLevelPage::WriteSection(ConfigurationSection* section, CConfLev::ConfLev level) {
    WriteSection(section, level, CConfLev::None, CIntervalType::None);
}

bool ConfidenceLevelPage::ReadSection(const ConfigurationSection* section, CConfLev::ConfLev& level,
                                      CConfLev::ConfLev& tolerance,
                                      CIntervalType::IntervalType& type) {
    return ReadLevels(section, kSection, level, tolerance, type);
}

bool ConfidenceLevelPage::ReadSection(const ConfigurationSection* section,
                                      CConfLev::ConfLev& level) {
    CConfLev::ConfLev tolerance = CConfLev::None;
    CIntervalType::IntervalType type = CIntervalType::None;
    return ReadSection(section, level, tolerance, type);
}

}  // namespace kvopt

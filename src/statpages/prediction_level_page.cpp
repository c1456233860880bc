#include "kvopt/statpages/prediction_level_page.h"

#include "kvopt/platform.h"
#include "statpages/level_choice.h"
#include "statpages_texts.h"

namespace kvopt {

namespace {

constexpr int kTemplate = 6230;
constexpr unsigned kHelpTopic = 226;

constexpr int kLevel = 6299;
constexpr int kTolerance = 6341;
constexpr int kInterval = 6344;
constexpr int kSafetyMargins = 6351;

constexpr const char* kSection = "PredictionLevelPage";

/// The entry that stands for an interval type.
int EntryOf(CIntervalType::IntervalType type, bool mayBeNone) {
    switch (type) {
        case CIntervalType::Confidence:
            return 0;
        case CIntervalType::Tolerance:
            return kToleranceEntry;
        case CIntervalType::None:
            return mayBeNone ? kNoneEntry : 1;
        case CIntervalType::Prediction:
        case CIntervalType::Unknown:
            break;
    }
    return 1;
}

}  // namespace

PredictionLevelPage::PredictionLevelPage(CConfLev::ConfLev& level, CConfLev::ConfLev& tolerance,
                                         CIntervalType::IntervalType& type,
                                         BasePropertyPageHelper* helper, bool* useLevel)
    : KvPropertyPage(kTemplate, 0, helper, kHelpTopic),
      useLevel_(useLevel),
      confidenceLevel_(level),
      toleranceProportion_(tolerance),
      intervalType_(type) {}

PredictionLevelPage::~PredictionLevelPage() = default;

void PredictionLevelPage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    map.OnSelectionChanged(kInterval, [this] { OnCbnSelchangeIntervalTypeCombo(); });
    map.OnSelectionChanged(kLevel, [this] { Changed(); });
    map.OnSelectionChanged(kTolerance, [this] { Changed(); });
}

void PredictionLevelPage::DoDataExchange(CDataExchange& exchange) {
    KvPropertyPage::DoDataExchange(exchange);
    DDX_Control(exchange, kInterval, intervalCombo_);
    DDX_Control(exchange, kLevel, levelCombo_);
    DDX_Control(exchange, kTolerance, toleranceCombo_);
}

void PredictionLevelPage::OnDestroyWindow() {
    intervalCombo_ = nullptr;
    levelCombo_ = nullptr;
    toleranceCombo_ = nullptr;
    KvPropertyPage::OnDestroyWindow();
}

CControl* PredictionLevelPage::SafetyMarginsText() const {
    return GetDlgItem(kSafetyMargins);
}

bool PredictionLevelPage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    SelectLevel(*levelCombo_, confidenceLevel_);
    SelectLevel(*toleranceCombo_, toleranceProportion_);
    if (useLevel_ != nullptr) {
        const int none = intervalCombo_->AddString(texts::kLevelsNoInterval.Wide());
        if (!*useLevel_) {
            intervalCombo_->SetCurSel(none);
        }
    }
    // The type has the last word, also over a level that is not used.
    intervalCombo_->SetCurSel(EntryOf(intervalType_, useLevel_ != nullptr));
    if (intervalType_ == CIntervalType::Tolerance) {
        toleranceCombo_->EnableWindow(true);
    }
    SafetyMarginsText()->SetText(texts::kLevelsSafetyMargins.Wide());
    SafetyMarginsText()->ShowWindow(false);
    return true;
}

void PredictionLevelPage::OnCbnSelchangeIntervalTypeCombo() {
    Changed();
    toleranceCombo_->EnableWindow(intervalCombo_->GetCurSel() == kToleranceEntry);
}

bool PredictionLevelPage::OnApply() {
    if (IsChanged() && UpdateData(true)) {
        const bool isInterval = useLevel_ == nullptr || intervalCombo_->GetCurSel() != kNoneEntry;
        if (useLevel_ != nullptr) {
            *useLevel_ = isInterval;
        }
        confidenceLevel_ = ChosenLevel(*levelCombo_, CConfLev::Level95);
        toleranceProportion_ = ChosenLevel(*toleranceCombo_, CConfLev::Level95);
        intervalType_ = isInterval ? ChosenInterval(*intervalCombo_, CIntervalType::Prediction)
                                   : CIntervalType::None;
    }
    return KvPropertyPage::OnApply();
}

void PredictionLevelPage::WriteSection(ConfigurationSection* section, CConfLev::ConfLev level,
                                       CConfLev::ConfLev tolerance,
                                       CIntervalType::IntervalType type) {
    WriteLevels(section, kSection, level, tolerance, type);
}

bool PredictionLevelPage::ReadSection(const ConfigurationSection* section, CConfLev::ConfLev& level,
                                      CConfLev::ConfLev& tolerance,
                                      CIntervalType::IntervalType& type) {
    return ReadLevels(section, kSection, level, tolerance, type);
}

}  // namespace kvopt

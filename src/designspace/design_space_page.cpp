#include "kvopt/designspace/design_space_page.h"

#include <optional>
#include <string>

#include "designspace/risk_limit.h"
#include "designspace_texts.h"
#include "kvopt/platform.h"
#include "kvopt/study/design_space_options.h"
#include "kvopt/text.h"

namespace kvopt {

namespace {

constexpr unsigned kSetpointTemplate = 6209;
constexpr unsigned kSetpointHelp = 440;

constexpr int kRangeSimulations = 6237;
constexpr int kProfileSimulations = 6238;
constexpr int kModelError = 6239;
constexpr int kLimit = 6241;
constexpr int kLimitCaption = 6245;
constexpr int kAutomaticUpdate = 6252;
constexpr int kTotalProbability = 6259;
constexpr int kConfidence95 = 6260;
constexpr int kConfidence99 = 6261;
constexpr int kReset = 6270;
constexpr int kMinMaxLines = 6277;

constexpr int kFewestSimulations = 100;
constexpr int kMostProfileSimulations = 1000000;
constexpr int kMostRangeSimulations = 100000;
constexpr int kLowestDpmo = 10;
constexpr int kHighestDpmo = 500000;

}  // namespace

DesignSpacePage::DesignSpacePage(const Investigation* investigation, DesignSpaceOptions& options,
                                 BasePropertyPageHelper* helper)
    : KvPropertyPage(kSetpointTemplate, 0, helper, kSetpointHelp),
      options_(options),
      investigation_(investigation) {}

void DesignSpacePage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    for (const int field : {kRangeSimulations, kProfileSimulations, kLimit}) {
        map.OnChanged(field, [this] { Changed(); });
    }
    for (const int button : {kTotalProbability, kModelError, kAutomaticUpdate, kConfidence95,
                             kConfidence99, kMinMaxLines}) {
        map.OnClicked(button, [this] { Changed(); });
    }
    map.OnClicked(kReset, [this] { OnBnClickedBtnDsReset(); });
}

bool DesignSpacePage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    const auto presentation = PresentRiskPresentation();
    if (presentation == RiskPresentationEnum::Dpmo) {
        Item<CEdit>(kLimit)->SetDigitsOnly(true);
    }
    GetDlgItem(kLimitCaption)->SetText(RiskLimitCaption(presentation));
    UpdateFields(options_);
    return true;
}

void DesignSpacePage::UpdateFields(DesignSpaceOptions& options) {
    Item<CEdit>(kProfileSimulations)->SetText(std::to_wstring(options.responseProfileSimulations));
    Item<CEdit>(kRangeSimulations)->SetText(std::to_wstring(options.acceptableRangeSimulations));
    Item<CButton>(kModelError)->SetCheck(options.includeModelError);
    auto* limit = Item<CEdit>(kLimit);
    if (PresentRiskPresentation() == RiskPresentationEnum::Probability) {
        const float percent =
            static_cast<float>(options.dpmoLimit) * static_cast<float>(kPercentPerDpmo);
        limit->SetText(KvString::FormatGWide(static_cast<double>(percent)));
    } else {
        limit->SetText(std::to_wstring(options.dpmoLimit));
    }
    Item<CButton>(kAutomaticUpdate)->SetCheck(options.automaticUpdate);
    Item<CButton>(kTotalProbability)->SetCheck(options.useTotalProbability);
    Item<CButton>(kMinMaxLines)->SetCheck(options.showMinMaxLines);
    Item<CButton>(options.limitConfidence == 95 ? kConfidence95 : kConfidence99)->SetCheck(true);
}

void DesignSpacePage::OnBnClickedBtnDsReset() {
    DesignSpaceOptions defaults(nullptr);
    defaults.Reset();
    UpdateFields(defaults);
}

bool DesignSpacePage::OnApply() {
    options_.whatToUpdate = 0;
    DesignSpaceOptions options = options_;
    if (!TakeSimulations(options)) {
        return false;
    }
    options.includeModelError = Item<CButton>(kModelError)->GetCheck();
    options.automaticUpdate = Item<CButton>(kAutomaticUpdate)->GetCheck();
    if (!TakeLimit(options)) {
        return false;
    }
    options.useTotalProbability = Item<CButton>(kTotalProbability)->GetCheck();
    options.showMinMaxLines = Item<CButton>(kMinMaxLines)->GetCheck();
    options.limitConfidence = Item<CButton>(kConfidence95)->GetCheck() ? 95 : 99;
    options.SetWhatToUpdate(options_);
    options_ = options;
    options_.SaveAsGlobalSettings(investigation_);
    return KvPropertyPage::OnApply();
}

bool DesignSpacePage::TakeSimulations(DesignSpaceOptions& options) {
    return TakeInteger(kProfileSimulations, kFewestSimulations, kMostProfileSimulations,
                       texts::kProfileSimulationsOutside, options.responseProfileSimulations) &&
           TakeInteger(kRangeSimulations, kFewestSimulations, kMostRangeSimulations,
                       texts::kRangeSimulationsOutside, options.acceptableRangeSimulations);
}

/// In percent alone the page comes up before it refuses.
bool DesignSpacePage::TakeLimit(DesignSpaceOptions& options) {
    const auto presentation = PresentRiskPresentation();
    if (presentation != RiskPresentationEnum::Probability) {
        return TakeInteger(kLimit, kLowestDpmo, kHighestDpmo, RiskLimitMessage(presentation),
                           options.dpmoLimit);
    }
    const std::optional<int> limit = ReadRiskLimit(presentation, Item<CEdit>(kLimit)->GetText());
    if (!limit) {
        if (GetSheet() != nullptr) {
            GetSheet()->SetActivePage(this);
        }
        return Refuse(kLimit, RiskLimitMessage(presentation));
    }
    options.dpmoLimit = *limit;
    return true;
}

bool DesignSpacePage::TakeInteger(int control, int low, int high, const PlainText& message,
                                  int& value) {
    int typed = 0;
    if (!KvString::ToInt(Item<CEdit>(control)->GetText(), typed) || typed < low || typed > high) {
        return Refuse(control, message);
    }
    value = typed;
    return true;
}

bool DesignSpacePage::Refuse(int control, const PlainText& message) {
    GotoDlgCtrl(GetDlgItem(control));
    ShowMessage(this, message.Wide(), BoxStyle::Error);
    return false;
}

}  // namespace kvopt

#include "kvopt/designspace/ds_contour_plot_options_page.h"

#include <optional>
#include <string>

#include "designspace/risk_limit.h"
#include "designspace_texts.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/text.h"
#include "sheets/page_checks.h"
#include "sheets/plot_resolution.h"

namespace kvopt {

namespace {

constexpr unsigned kDSOptionsTemplate = 6221;
constexpr unsigned kDSOptionsHelp = 101;

constexpr int kUseColor = 6022;
constexpr int kShowLabels = 6027;
constexpr int kResolution = 6046;
constexpr int kLockLevels = 6223;
constexpr int kSimulations = 6272;
constexpr int kModelError = 6284;
constexpr int kAnalytical = 6296;
constexpr int kLimit = 6327;
constexpr int kLimitCaption = 6343;

constexpr int kFewestSimulations = 100;
constexpr int kMostSimulations = 1000000;
constexpr double kRangePercent = 50.0;
constexpr double kRangeDpmo = 500000.0;

}  // namespace

DSContourPlotOptionsPage::DSContourPlotOptionsPage(const Investigation* /*investigation*/,
                                                   ContourPageData& data,
                                                   BasePropertyPageHelper* helper)
    : KvPropertyPage(kDSOptionsTemplate, 0, helper, kDSOptionsHelp), data_(data) {}

void DSContourPlotOptionsPage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    for (const int check : {kUseColor, kShowLabels, kLockLevels, kModelError, kAnalytical}) {
        map.OnClicked(check, [this] { Changed(); });
    }
    map.OnSelectionChanged(kResolution, [this] { Changed(); });
    for (const int field : {kResolution, kSimulations, kLimit}) {
        map.OnChanged(field, [this] { Changed(); });
    }
}

bool DSContourPlotOptionsPage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    const ContourPageData::Arguments& options = data_.GetOptions();
    ShowResolution(*Item<CComboBox>(kResolution), options);
    SetCheckIfThere(*this, kUseColor, options.useColor);
    if (auto* labels = Item<CButton>(kShowLabels)) {
        labels->EnableWindow(options.hasContourLabels);
        if (options.hasContourLabels) {
            labels->SetCheck(options.useContourLabels);
        }
    }
    if (options.isProbabilityPlot) {
        Item<CEdit>(kSimulations)->SetText(std::to_wstring(options.numSimulations));
        Item<CButton>(kModelError)->SetCheck(options.includeModelError);
    }

    const auto presentation = PresentRiskPresentation();
    GetDlgItem(kLimitCaption)->SetText(RiskLimitCaption(presentation));
    auto* limit = Item<KvRangeEdit>(kLimit);
    if (presentation == RiskPresentationEnum::Probability) {
        const auto percent = static_cast<float>(options.dpmoTarget * kPercentPerDpmo);
        limit->SetText(KvString::FormatGWide(static_cast<double>(percent)));
        limit->SetRange(0.0, kRangePercent);
    } else {
        limit->SetText(std::to_wstring(options.dpmoTarget));
        limit->SetRange(0.0, kRangeDpmo);
    }
    return true;
}

bool DSContourPlotOptionsPage::OnSetActive() {
    KvPropertyPage::OnSetActive();
    Item<CButton>(kAnalytical)->SetCheck(data_.GetOptions().analyticalProbability);
    return true;
}

bool DSContourPlotOptionsPage::OnApply() {
    if (IsChanged()) {
        ContourPageData::Arguments& options = data_.GetOptions();
        if (!StoreResolution() || (options.isProbabilityPlot && !StoreSimulation()) ||
            !StoreLimit()) {
            return false;
        }
        GetCheckIfThere(*this, kUseColor, options.useColor);
        GetCheckIfThere(*this, kShowLabels, options.useContourLabels);
        GetCheckIfThere(*this, kLockLevels, options.lockContourLevels);
        data_.SaveRegistrySettings();
    }
    return KvPropertyPage::OnApply();
}

bool DSContourPlotOptionsPage::StoreResolution() {
    const PlainText* refusal = TakeResolution(
        *Item<CComboBox>(kResolution), texts::kDesignSpaceResolutionTooHigh, data_.GetOptions());
    return refusal == nullptr || Refuse(kResolution, *refusal);
}

bool DSContourPlotOptionsPage::StoreSimulation() {
    ContourPageData::Arguments& options = data_.GetOptions();
    int simulations = 0;
    if (!KvString::ToInt(Item<CEdit>(kSimulations)->GetText(), simulations) ||
        simulations < kFewestSimulations || simulations > kMostSimulations) {
        return Refuse(kSimulations, texts::kSimulationsOutside);
    }
    options.numSimulations = simulations;
    const auto* analytical = Item<CButton>(kAnalytical);
    if (analytical->IsVisible() && analytical->IsEnabled()) {
        options.analyticalProbability = analytical->GetCheck();
    }
    options.includeModelError = Item<CButton>(kModelError)->GetCheck();
    return true;
}

/// Refuses in an order of its own: the message, which is plain, comes before the page.
bool DSContourPlotOptionsPage::StoreLimit() {
    const auto presentation = PresentRiskPresentation();
    const std::optional<int> limit =
        ReadRiskLimit(presentation, Item<KvRangeEdit>(kLimit)->GetText());
    if (!limit) {
        ShowMessage(this, RiskLimitMessage(presentation).Wide(), BoxStyle::Plain);
        if (GetSheet() != nullptr) {
            GetSheet()->SetActivePage(this);
        }
        GotoDlgCtrl(GetDlgItem(kLimit));
        return false;
    }
    data_.GetOptions().dpmoTarget = *limit;
    return true;
}

bool DSContourPlotOptionsPage::Refuse(int control, const PlainText& message) {
    if (GetSheet() != nullptr) {
        GetSheet()->SetActivePage(this);
    }
    GotoDlgCtrl(GetDlgItem(control));
    ShowMessage(this, message.Wide(), BoxStyle::Error);
    return false;
}

}  // namespace kvopt

#include "kvopt/sheets/contour_plot_options_page.h"

#include "kvopt/platform.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/text.h"
#include "sheets/page_checks.h"
#include "sheets/plot_resolution.h"
#include "sheets_texts.h"

namespace kvopt {

namespace {

constexpr int kUseColor = 6022;
constexpr int kShowLabels = 6027;
constexpr int kEqualScale = 6029;
constexpr int kResolution = 6046;
constexpr int kLockLevels = 6223;

}  // namespace

ContourPlotOptionsPage::ContourPlotOptionsPage(const Investigation* /*investigation*/,
                                               ContourPageData& data,
                                               BasePropertyPageHelper* helper,
                                               unsigned templateNumber, unsigned helpTopic)
    : KvPropertyPage(templateNumber, 0, helper, helpTopic), data_(data) {}

void ContourPlotOptionsPage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    map.OnClicked(kUseColor, [this] { Changed(); });
    map.OnClicked(kShowLabels, [this] { Changed(); });
    map.OnClicked(kEqualScale, [this] { OnScaleChanged(); });
    map.OnClicked(kLockLevels, [this] { OnScaleChanged(); });
    map.OnSelectionChanged(kResolution, [this] { Changed(); });
    map.OnChanged(kResolution, [this] { Changed(); });
}

bool ContourPlotOptionsPage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    const ContourPageData::Arguments& options = data_.GetOptions();
    ShowResolution(*Item<CComboBox>(kResolution), options);
    SetCheckIfThere(*this, kUseColor, options.useColor);
    SetCheckIfThere(*this, kShowLabels, options.useContourLabels);
    SetCheckIfThere(*this, kEqualScale, options.scaleEqual);
    SetCheckIfThere(*this, kLockLevels, options.lockContourLevels);
    return true;
}

bool ContourPlotOptionsPage::OnSetActive() {
    UpdateEnable();
    return KvPropertyPage::OnSetActive();
}

void ContourPlotOptionsPage::UpdateEnable() {
    auto* lock = Item<CButton>(kLockLevels);
    if (lock == nullptr) {
        return;
    }
    const bool equalScale = Item<CButton>(kEqualScale)->GetCheck();
    lock->EnableWindow(equalScale);
    if (!equalScale) {
        lock->SetCheck(false);
    }
}

void ContourPlotOptionsPage::OnScaleChanged() {
    UpdateEnable();
    Changed();
}

bool ContourPlotOptionsPage::Refuse(const std::wstring& message) {
    if (GetSheet() != nullptr) {
        GetSheet()->SetActivePage(this);
    }
    GotoDlgCtrl(GetDlgItem(kResolution));
    ShowMessage(this, message, BoxStyle::Error);
    return false;
}

bool ContourPlotOptionsPage::OnApply() {
    if (IsChanged()) {
        ContourPageData::Arguments& options = data_.GetOptions();
        if (const PlainText* refusal =
                TakeResolution(*Item<CComboBox>(kResolution), texts::kResolutionTooHigh, options)) {
            return Refuse(refusal->Wide());
        }
        GetCheckIfThere(*this, kUseColor, options.useColor);
        GetCheckIfThere(*this, kEqualScale, options.scaleEqual);
        GetCheckIfThere(*this, kShowLabels, options.useContourLabels);
        GetCheckIfThere(*this, kLockLevels, options.lockContourLevels);
        data_.SaveRegistrySettings();
    }
    return KvPropertyPage::OnApply();
}

}  // namespace kvopt

#include "kvopt/sheets/contour_plot_options_page.h"

#include <boost/lexical_cast.hpp>

#include "kvopt/platform.h"
#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/text.h"
#include "sheets_texts.h"

namespace kvopt {

namespace {

constexpr int kUseColor = 6022;
constexpr int kShowLabels = 6027;
constexpr int kEqualScale = 6029;
constexpr int kResolution = 6046;
constexpr int kLockLevels = 6223;

constexpr int kFirstProcessResolution = 16;
constexpr int kFirstMixtureResolution = 64;
constexpr int kLastOfferedResolution = 256;
constexpr int kLowestResolution = 16;
constexpr int kHighestResolution = 1024;

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
    auto* combo = Item<CComboBox>(kResolution);
    combo->ResetContent();
    for (int offered = options.mixtureMode ? kFirstMixtureResolution : kFirstProcessResolution;
         offered <= kLastOfferedResolution; offered *= 2) {
        combo->AddString(boost::lexical_cast<std::wstring>(offered));
    }
    const int present = options.mixtureMode ? options.mixtureResolution : options.resolution;
    if (present != -1) {
        combo->SetText(boost::lexical_cast<std::wstring>(present));
    }
    SetCheckIfThere(kUseColor, options.useColor);
    SetCheckIfThere(kShowLabels, options.useContourLabels);
    SetCheckIfThere(kEqualScale, options.scaleEqual);
    SetCheckIfThere(kLockLevels, options.lockContourLevels);
    return true;
}

bool ContourPlotOptionsPage::OnSetActive() {
    UpdateEnable();
    return KvPropertyPage::OnSetActive();
}

void ContourPlotOptionsPage::SetCheckIfThere(int control, bool checked) {
    if (auto* button = Item<CButton>(control)) {
        button->SetCheck(checked);
    }
}

void ContourPlotOptionsPage::GetCheckIfThere(int control, bool& checked) const {
    if (const auto* button = Item<CButton>(control)) {
        checked = button->GetCheck();
    }
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
        int resolution = 0;
        if (!KvString::ToInt(Item<CComboBox>(kResolution)->GetText(), resolution)) {
            return Refuse(texts::kResolutionNotNumber.Wide());
        }
        if (resolution < kLowestResolution) {
            return Refuse(texts::kResolutionTooLow.Wide());
        }
        if (resolution > kHighestResolution) {
            return Refuse(texts::kResolutionTooHigh.Wide());
        }
        ContourPageData::Arguments& options = data_.GetOptions();
        (options.mixtureMode ? options.mixtureResolution : options.resolution) = resolution;
        GetCheckIfThere(kUseColor, options.useColor);
        GetCheckIfThere(kEqualScale, options.scaleEqual);
        GetCheckIfThere(kShowLabels, options.useContourLabels);
        GetCheckIfThere(kLockLevels, options.lockContourLevels);
        data_.SaveRegistrySettings();
    }
    return KvPropertyPage::OnApply();
}

}  // namespace kvopt

#include "axes/factor_precision_controls.h"

#include "axes_texts.h"
#include "kvopt/platform/controls.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/kv_dont_show_again_message_box.h"
#include "kvopt/platform/message_map.h"
#include "kvopt/study/factor_class.h"
#include "kvopt/study/variables.h"

namespace kvopt {

namespace {

constexpr int kOnAxisFactors = 6279;
constexpr int kOnConstantFactors = 6280;
constexpr int kDistribution = 6305;
constexpr int kDistributionLabel = 6306;

constexpr const char* kReminder = "ChangedDistribution";

}  // namespace

void FactorPrecisionControls::AddHandlers(MessageMap& map,
                                          const std::function<void()>& distribution,
                                          const std::function<void()>& precision) {
    map.OnClicked(kOnAxisFactors, precision);
    map.OnClicked(kOnConstantFactors, precision);
    map.OnSelectionChanged(kDistribution, distribution);
}

void FactorPrecisionControls::FillDistributions(bool withNormal) const {
    auto& list = *page_.Item<KvComboBox>(kDistribution);
    list.ResetContent();
    for (const auto distribution :
         {DSFactorSettings::Uniform, DSFactorSettings::Normal, DSFactorSettings::Triangular}) {
        if (withNormal || distribution != DSFactorSettings::Normal) {
            list.AddItem(DSFactorSettings::ToString(distribution), distribution);
        }
    }
}

void FactorPrecisionControls::Show(std::optional<DSFactorSettings::Distribution> otherwise) const {
    if (options_ == nullptr || !options_->isProbabilityPlot) {
        for (const int number :
             {kOnAxisFactors, kOnConstantFactors, kDistribution, kDistributionLabel}) {
            page_.GetDlgItem(number)->ShowWindow(false);
        }
        return;
    }
    ShowSwitches();
    page_.GetDlgItem(kDistribution)->ShowWindow(!options_->fromDesignSpaceKey);
    page_.GetDlgItem(kDistributionLabel)->ShowWindow(!options_->fromDesignSpaceKey);
    auto& list = *page_.Item<KvComboBox>(kDistribution);
    const bool isOtherNormal = options_->distribution == DSFactorSettings::OtherNormal;
    list.SelectItem(isOtherNormal ? DSFactorSettings::Normal : options_->distribution);
    if (otherwise && !list.GetSelectedItem()) {
        list.SelectItem(*otherwise);
    }
}

void FactorPrecisionControls::ShowSwitches() const {
    auto& onAxes = *page_.Item<CButton>(kOnAxisFactors);
    auto& onConstants = *page_.Item<CButton>(kOnConstantFactors);
    onAxes.ShowWindow(true);
    onConstants.ShowWindow(true);
    if (options_->fromDesignSpaceKey) {
        onAxes.SetText(texts::kAxesExplorationOnAxes.Wide());
        onConstants.SetText(texts::kAxesExplorationOnConstants.Wide());
    }
    const bool usable = FactorClass::DoesAnyHaveDistribution(variables_.GetAllFactors());
    onAxes.SetCheck(usable && options_->errorOnAxisFactors);
    onConstants.SetCheck(usable && options_->errorOnConstantFactors);
    if (!usable) {
        for (const int number :
             {kOnAxisFactors, kOnConstantFactors, kDistribution, kDistributionLabel}) {
            page_.GetDlgItem(number)->EnableWindow(false);
        }
    }
}

void FactorPrecisionControls::Remind() const {
    if (!page_.Item<CButton>(kOnAxisFactors)->GetCheck() &&
        !page_.Item<CButton>(kOnConstantFactors)->GetCheck()) {
        return;
    }
    const bool fromExploration = options_ != nullptr && options_->fromDesignSpaceKey;
    const PlainText& text =
        fromExploration ? texts::kAxesCheckDistributions : texts::kAxesCheckPrecisions;
    KvDontShowAgainMessageBox(&page_, kReminder, text.Wide());
}

void FactorPrecisionControls::Transfer() const {
    if (options_ == nullptr || !options_->isProbabilityPlot ||
        !FactorClass::DoesAnyHaveDistribution(variables_.GetAllFactors())) {
        return;
    }
    options_->errorOnAxisFactors = page_.Item<CButton>(kOnAxisFactors)->GetCheck();
    options_->errorOnConstantFactors = page_.Item<CButton>(kOnConstantFactors)->GetCheck();
    if (!options_->fromDesignSpaceKey) {
        const auto selected = page_.Item<KvComboBox>(kDistribution)->GetSelectedItem();
        options_->distribution = static_cast<int>(selected.value_or(DSFactorSettings::Normal));
    }
}

}  // namespace kvopt

#include "kvopt/axes/mixture_axis_page.h"

#include <algorithm>
#include <array>

#include "axes/axis_filters.h"
#include "axes_texts.h"
#include "kvopt/axes/fill_box.h"
#include "kvopt/constants/vws_constant_interface.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/kv_property_sheet.h"
#include "kvopt/study/factor_class.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/kv_string.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

namespace {

constexpr unsigned kTemplate = 6168;

/// What a formulation factor on no axis adds to the sums.
double ConstantPart(const Variables& variables, const FactorClass& factor,
                    const VWSConstantInterface& grid) {
    std::string text;
    grid.GetConstantValue(factor.GetName(), text);
    if (text.empty()) {
        const double reference =
            variables.GetMixtureReferenceRegulated(factor.GetName(), "", kNotSet, false);
        return variables.GetPseudoComponent(&factor, reference, false);
    }
    double value = kNotSet;
    KvString::ToDouble(text, value);
    return value;
}

}  // namespace

MixtureAxisPage::MixtureAxisPage(const Investigation* investigation, const Arguments& arguments,
                                 BasePropertyPageHelper* helper, unsigned helpTopic)
    : Contour2DAxisPage(investigation, arguments, kTemplate, helper, helpTopic),
      finishOnly_(arguments.finishOnly) {}

MixtureAxisPage::~MixtureAxisPage() = default;

void MixtureAxisPage::FillAxisCombo(int /*axis*/, CComboBox* box, const wchar_t* selected) {
    const auto filter = AxisFilters::Of(GetInvestigation()).Mixture();
    FillBox(GetInvestigation(), FillBox::Ordinary)
        .FillFactorCLB(box, filter.get(), selected, false);
}

bool MixtureAxisPage::HasLegalMixtureSettings() const {
    const Variables& variables = *GetInvestigation()->GetVariables();
    const std::array<std::string, 3> names{NameAxis(1), NameAxis(2), NameAxis(3)};
    const double total = variables.GetMixtureTotal();
    double lowSum = 0.0;
    double highSum = 0.0;
    for (const FactorClass* factor : variables.GetAllDesignFactors(false)) {
        if (!factor->IsMixture()) {
            continue;
        }
        const auto found = std::find(names.begin(), names.end(), factor->GetName());
        if (found != names.end()) {
            const int axis = static_cast<int>(found - names.begin()) + 1;
            lowSum += GetMin(axis);
            highSum += GetMax(axis);
        } else {
            const double part = ConstantPart(variables, *factor, Grid());
            lowSum += part;
            highSum += part;
        }
    }
    if (lowSum < total && total < highSum) {
        return true;
    }
    const PlainText& text = lowSum >= total ? texts::kAxesDecreaseLow : texts::kAxesIncreaseHigh;
    ShowMessage(Sheet(), text.Wide(), BoxStyle::Error);
    return false;
}

bool MixtureAxisPage::OnSetActive() {
    const bool result = Contour2DAxisPage::OnSetActive();
    CPropertySheet* sheet = Sheet();
    if (sheet != nullptr && sheet->IsWizard()) {
        sheet->SetWizardButtons(finishOnly_ ? kWizardFinish : kWizardBack | kWizardFinish);
    }
    return result;
}

bool MixtureAxisPage::OnKillActive() {
    if (!CPropertyPage::OnKillActive()) {
        return false;
    }
    const CPropertySheet* sheet = Sheet();
    return sheet == nullptr || !sheet->IsWizard() || HasLegalMixtureSettings();
}

bool MixtureAxisPage::OnApply() {
    if (IsChanged()) {
        if (!Grid().CheckInterfaceValues(-1, -1, nullptr) || !HasLegalMixtureSettings()) {
            return false;
        }
        Grid().SaveInterfaceValues();
    }
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): its parent's step is passed over on purpose
    return AxisPage::OnApply();
}

}  // namespace kvopt

#include "kvopt/axes/contour_4d_axis_page.h"

#include "axes/axis_filters.h"
#include "axes/constants_hint.h"
#include "axes/factor_precision_controls.h"
#include "axes/outer_axes.h"
#include "axes_texts.h"
#include "kvopt/axes/fill_box.h"
#include "kvopt/platform/combo_box.h"
#include "kvopt/platform/message_map.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/variables.h"

namespace kvopt {

namespace {

constexpr unsigned kTemplate = 6161;
constexpr int kConstantsTemplate = 6157;

constexpr int kInnerAxes = 2;
constexpr int kThird = 3;
constexpr int kFourth = 4;

OuterAxes Outer(const AxisPage& page, const Investigation* investigation) {
    return {page, investigation->GetVariables(), kThird};
}

}  // namespace

Contour4DAxisPage::Contour4DAxisPage(const Investigation* investigation, Arguments& arguments,
                                     ContourPageData::Arguments* contourOptions,
                                     BasePropertyPageHelper* helper, unsigned helpTopic)
    : AxisPage(investigation, arguments, kTemplate, helper, helpTopic),
      contourOptions_(contourOptions),
      inWizard_(arguments.inWizard) {}

Contour4DAxisPage::~Contour4DAxisPage() = default;

void Contour4DAxisPage::GetMessageMap(MessageMap& map) {
    AxisPage::GetMessageMap(map);
    Outer(*this, GetInvestigation())
        .AddHandlers(
            map, [this] { Changed(); },
            [this](int axis) {
                ClickedB4dsettings(AxisCombo(axis),
                                   Outer(*this, GetInvestigation()).SettingsEdit(axis));
            });
    FactorPrecisionControls::AddHandlers(
        map, [this] { Changed(); }, [this] { ChangedDistribution(); });
}

void Contour4DAxisPage::FillAxisCombo(int axis, CComboBox* box, const wchar_t* selected) {
    const auto filter = AxisFilters::Of(GetInvestigation()).Process4D(axis);
    FillBox(GetInvestigation(), FillBox::Ordinary)
        .FillFactorCLB(box, filter.get(), selected, axis <= kInnerAxes);
}

void Contour4DAxisPage::OnChangeAxis(int axis) {
    AxisPage::OnChangeAxis(axis);
    OnCbDefaultConstants();
}

bool Contour4DAxisPage::CheckLegalAxes() const {
    std::string message;
    AxisErrorSeverity severity = AreAxesLegal(message);
    if (severity != AxisError) {
        severity = Outer(*this, GetInvestigation()).Check(severity, message);
    }
    return TellVerdict(severity, message);
}

void Contour4DAxisPage::SetDefault(int axis) {
    AxisPage::SetDefault(axis);
    if (axis > kInnerAxes && HasWindow()) {
        ShowRange(axis, !Outer(*this, GetInvestigation()).ShowDefault(axis));
    }
}

void Contour4DAxisPage::TransferFromPage() {
    AxisPage::TransferFromPage();
    if (!HasWindow()) {
        return;
    }
    for (const int axis : {kThird, kFourth}) {
        Outer(*this, GetInvestigation()).Transfer(axis, Axis(axis));
    }
    FactorPrecisionControls(*this, GetInvestigation()->GetVariables(), contourOptions_).Transfer();
}

bool Contour4DAxisPage::OnInitDialog() {
    AxisPage::OnInitDialog();
    Setup4DSettings();
    AddUnusedOption(kThird);
    AddUnusedOption(kFourth);
    const FactorPrecisionControls precision(*this, GetInvestigation()->GetVariables(),
                                            contourOptions_);
    precision.FillDistributions(true);
    if (!inWizard_ || (contourOptions_ != nullptr && contourOptions_->isProbabilityPlot)) {
        ConstantsHint::Hide(*this);
    }
    precision.Show(std::nullopt);
    return true;
}

bool Contour4DAxisPage::OnSetActive() {
    const bool result = AxisPage::OnSetActive();
    OnCbDefaultConstants();
    return result;
}

int Contour4DAxisPage::OnWizardNext() {
    return AxisPage::OnWizardNext() == -1 ? -1 : kConstantsTemplate;
}

void Contour4DAxisPage::ChangedDistribution() {
    FactorPrecisionControls(*this, GetInvestigation()->GetVariables(), contourOptions_).Remind();
    Changed();
}

void Contour4DAxisPage::OnCbDefaultConstants() {
    int axesInUse = kInnerAxes;
    for (const int axis : {kThird, kFourth}) {
        axesInUse += AxisInfo::IsNotUsedName(NameAxis(axis)) ? 0 : 1;
    }
    const bool hasConstants = AxisFilters::Of(GetInvestigation()).FactorCount() > axesInUse;
    const unsigned long buttons =
        ConstantsHint::Write(*this, hasConstants, texts::kAxesConstantsFollow);
    if (Sheet() != nullptr && Sheet()->IsWizard()) {
        Sheet()->SetWizardButtons(buttons);
    }
}

void Contour4DAxisPage::Setup4DSettings() {
    for (const int axis : {kThird, kFourth}) {
        Outer(*this, GetInvestigation()).ShowStored(axis, Axis(axis));
    }
}

void Contour4DAxisPage::ClickedB4dsettings(CComboBox* box, CEdit* edit) {
    Outer(*this, GetInvestigation()).Choose(*box, *edit, Sheet(), [this] { Changed(); });
}

}  // namespace kvopt

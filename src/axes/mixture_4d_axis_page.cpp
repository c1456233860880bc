#include "kvopt/axes/mixture_4d_axis_page.h"

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

constexpr unsigned kTemplate = 6169;
constexpr int kConstantsTemplate = 6170;

constexpr int kInnerAxes = 3;
constexpr int kFourth = 4;
constexpr int kFifth = 5;

OuterAxes Outer(const AxisPage& page, const Investigation* investigation) {
    return {page, investigation->GetVariables(), kFourth};
}

}  // namespace

Mixture4DAxisPage::Mixture4DAxisPage(const Investigation* investigation, const Arguments& arguments,
                                     ContourPageData::Arguments* contourOptions,
                                     BasePropertyPageHelper* helper, unsigned helpTopic)
    : AxisPage(investigation, arguments, kTemplate, helper, helpTopic),
      contourOptions_(contourOptions),
      inWizard_(arguments.inWizard) {}

Mixture4DAxisPage::~Mixture4DAxisPage() = default;

void Mixture4DAxisPage::GetMessageMap(MessageMap& map) {
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

void Mixture4DAxisPage::FillAxisCombo(int axis, CComboBox* box, const wchar_t* selected) {
    const auto filter = AxisFilters::Of(GetInvestigation()).Mixture4D(axis);
    FillBox(GetInvestigation(), FillBox::Ordinary)
        .FillFactorCLB(box, filter.get(), selected, false);
}

void Mixture4DAxisPage::OnChangeAxis(int axis) {
    AxisPage::OnChangeAxis(axis);
    OnCbDefaultConstants();
}

bool Mixture4DAxisPage::CheckLegalAxes() const {
    std::string message;
    AxisErrorSeverity severity = AreAxesLegal(message);
    if (!IsUsedAxis(kInnerAxes)) {
        severity = AxisError;
        message += texts::kAxesThirdUnused.Text();
    }
    if (severity != AxisError) {
        severity = Outer(*this, GetInvestigation()).Check(severity, message);
    }
    return TellVerdict(severity, message);
}

void Mixture4DAxisPage::SetDefault(int axis) {
    AxisPage::SetDefault(axis);
    if (axis > kInnerAxes && HasWindow()) {
        ShowRange(axis, !Outer(*this, GetInvestigation()).ShowDefault(axis));
    }
}

void Mixture4DAxisPage::TransferFromPage() {
    AxisPage::TransferFromPage();
    if (!HasWindow()) {
        return;
    }
    for (const int axis : {kFourth, kFifth}) {
        Outer(*this, GetInvestigation()).Transfer(axis, Axis(axis));
    }
    FactorPrecisionControls(*this, GetInvestigation()->GetVariables(), contourOptions_).Transfer();
}

bool Mixture4DAxisPage::OnInitDialog() {
    AxisPage::OnInitDialog();
    const int processFactors = GetInvestigation()->GetVariables()->GetCount(CEVar::ProcessFactors);
    Setup4DSettings();
    AddUnusedOption(kFourth);
    AddUnusedOption(kFifth);
    const FactorPrecisionControls precision(*this, GetInvestigation()->GetVariables(),
                                            contourOptions_);
    precision.FillDistributions(processFactors > 0);
    if (!inWizard_ || (contourOptions_ != nullptr && contourOptions_->isProbabilityPlot)) {
        ConstantsHint::Hide(*this);
    }
    precision.Show(DSFactorSettings::Triangular);
    // A single process factor can lie on the fourth axis alone.
    if (processFactors < 2) {
        SetUnused(kFifth);
    }
    EnableAxis(kFifth, processFactors > 1);
    Unchanged();
    return true;
}

bool Mixture4DAxisPage::OnSetActive() {
    const bool result = AxisPage::OnSetActive();
    OnCbDefaultConstants();
    return result;
}

int Mixture4DAxisPage::OnWizardNext() {
    return AxisPage::OnWizardNext() == -1 ? -1 : kConstantsTemplate;
}

void Mixture4DAxisPage::ChangedDistribution() {
    FactorPrecisionControls(*this, GetInvestigation()->GetVariables(), contourOptions_).Remind();
    Changed();
}

void Mixture4DAxisPage::OnCbDefaultConstants() {
    int axesInUse = kInnerAxes;
    for (const int axis : {kFourth, kFifth}) {
        axesInUse += AxisInfo::IsNotUsedName(NameAxis(axis)) ? 0 : 1;
    }
    // The models are asked here in every study.
    const AxisFilters filters(GetInvestigation()->GetVariables(), GetInvestigation());
    const bool hasConstants = filters.FactorCount() > axesInUse;
    const unsigned long buttons =
        ConstantsHint::Write(*this, hasConstants, texts::kAxesMixtureConstantsFollow);
    if (Sheet() != nullptr && Sheet()->IsWizard()) {
        Sheet()->SetWizardButtons(buttons);
    }
}

void Mixture4DAxisPage::Setup4DSettings() {
    for (const int axis : {kFourth, kFifth}) {
        Outer(*this, GetInvestigation()).ShowStored(axis, Axis(axis));
    }
}

void Mixture4DAxisPage::ClickedB4dsettings(CComboBox* box, CEdit* edit) {
    Outer(*this, GetInvestigation()).Choose(*box, *edit, Sheet(), [this] { Changed(); });
}

}  // namespace kvopt

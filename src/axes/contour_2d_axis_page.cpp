#include "kvopt/axes/contour_2d_axis_page.h"

#include "axes/axis_filters.h"
#include "kvopt/axes/fill_box.h"
#include "kvopt/constants/contour_constants_chooser2.h"
#include "kvopt/constants/vws_constant_interface.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/variables.h"

namespace kvopt {

namespace {

constexpr int kGridControl = 6139;

}  // namespace

Contour2DAxisPage::Contour2DAxisPage(const Investigation* investigation, const Arguments& arguments,
                                     unsigned templateNumber, BasePropertyPageHelper* helper,
                                     unsigned helpTopic)
    : AxisPage(investigation, arguments, templateNumber, helper, helpTopic),
      accelerators_(AcceleratorTable::Find(kWorksheetAccelerators)) {
    const AxisFilters filters = AxisFilters::Of(investigation);
    auto chooser = std::make_unique<ContourConstantsChooser2>(investigation->GetVariables(), this,
                                                              filters.Models());
    constantsGrid_ = std::make_unique<VWSConstantInterface>(
        this, investigation, filters.FactorCount(), chooser.release(), arguments.constants,
        *arguments.defaults, false);
}

Contour2DAxisPage::~Contour2DAxisPage() = default;

void Contour2DAxisPage::FillAxisCombo(int /*axis*/, CComboBox* box, const wchar_t* selected) {
    const auto filter = AxisFilters::Of(GetInvestigation()).Process();
    FillBox(GetInvestigation(), FillBox::Ordinary)
        .FillFactorCLB(box, filter.get(), selected, false);
}

void Contour2DAxisPage::OnChangeAxis(int axis) {
    AxisPage::OnChangeAxis(axis);
    if (axisNames_.size() < static_cast<std::size_t>(axis)) {
        axisNames_.resize(static_cast<std::size_t>(axis));
    }
    std::string& shown = axisNames_[static_cast<std::size_t>(axis - 1)];
    if (!CompareAxis(axis, shown)) {
        shown = NameAxis(axis);
        constantsGrid_->SaveInterfaceValues();
        constantsGrid_->UpdateInterface();
    }
}

bool Contour2DAxisPage::OnInitDialog() {
    AxisPage::OnInitDialog();
    VirtualWorksheet::CreateFromStatic(*this, kGridControl, *constantsGrid_);
    constantsGrid_->UpdateInterface();
    return true;
}

bool Contour2DAxisPage::OnSetActive() {
    const bool result = AxisPage::OnSetActive();
    axisNames_.clear();
    for (int axis = 1; axis <= NAxis(); ++axis) {
        axisNames_.push_back(NameAxis(axis));
    }
    return result;
}

bool Contour2DAxisPage::OnWizardFinish() {
    if (!constantsGrid_->CheckInterfaceValues(-1, -1, nullptr)) {
        return false;
    }
    constantsGrid_->SaveInterfaceValues();
    return AxisPage::OnWizardFinish();
}

bool Contour2DAxisPage::OnApply() {
    constantsGrid_->FinishInput();
    if (IsChanged()) {
        if (!constantsGrid_->CheckInterfaceValues(-1, -1, nullptr)) {
            return false;
        }
        constantsGrid_->SaveInterfaceValues();
    }
    // The base may reach OnOK, which lets go of this page; the grid still belongs to it.
    KvPropertyPage* parent = constantsGrid_->GetParent();
    const bool result = AxisPage::OnApply();
    constantsGrid_->SetParent(parent);
    return result;
}

void Contour2DAxisPage::OnOK() {
    CPropertyPage::OnOK();
    constantsGrid_->SetParent(nullptr);
}

bool Contour2DAxisPage::PreTranslateMessage(const KeyStroke& key) {
    if (accelerators_ != nullptr && accelerators_->Translate(constantsGrid_->Worksheet(), key)) {
        return true;
    }
    return AxisPage::PreTranslateMessage(key);
}

}  // namespace kvopt

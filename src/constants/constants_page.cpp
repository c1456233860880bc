#include "kvopt/constants/constants_page.h"

#include "axes/axis_filters.h"
#include "kvopt/platform.h"
#include "kvopt/study.h"

namespace kvopt {

namespace {
constexpr int kGrid = 6139;

const std::vector<std::shared_ptr<AxisInfo>>& AxesOrNone(
    const std::vector<std::shared_ptr<AxisInfo>>* axes) {
    static const std::vector<std::shared_ptr<AxisInfo>> none;
    return axes != nullptr ? *axes : none;
}

}  // namespace

ConstantsPage::ConstantsPage(const Investigation* investigation, const Arguments& arguments,
                             unsigned templateNumber, BasePropertyPageHelper* helper, bool readOnly)
    : KvPropertyPage(templateNumber, 0, helper, kNoHelp),
      arguments_(arguments),
      grid_(std::make_unique<VWSConstantInterface>(
          this, investigation, AxisFilters::Of(investigation).FactorCount(), arguments.chooser,
          arguments.constants, AxesOrNone(arguments.axes), readOnly)),
      accelerators_(AcceleratorTable::Find(kWorksheetAccelerators)) {}

ConstantsPage::~ConstantsPage() = default;

void ConstantsPage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    map.OnChanged(kGrid, [this] { Changed(); });
}

bool ConstantsPage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    VirtualWorksheet::CreateFromStatic(*this, kGrid, *grid_);
    return true;
}

bool ConstantsPage::OnSetActive() {
    grid_->UpdateInterface();
    if (GetSheet() != nullptr && GetSheet()->IsWizard()) {
        GetSheet()->SetWizardButtons(kWizardBack | kWizardFinish);
    }
    return KvPropertyPage::OnSetActive();
}

bool ConstantsPage::OnKillActive() {
    const bool good = grid_->CheckInterfaceValues(-1, -1, nullptr);
    if (good) {
        grid_->SaveInterfaceValues();
    }
    return good;
}

bool ConstantsPage::OnApply() {
    if (IsChanged()) {
        if (!grid_->CheckInterfaceValues(-1, -1, nullptr)) {
            return false;
        }
        grid_->SaveInterfaceValues();
    }
    return KvPropertyPage::OnApply();
}

void ConstantsPage::OnOK() {
    KvPropertyPage::OnOK();
    grid_->SetParent(nullptr);
}

int ConstantsPage::OnWizardBack() {
    return arguments_.backPage;
}

bool ConstantsPage::PreTranslateMessage(const KeyStroke& key) {
    if (accelerators_ != nullptr && accelerators_->Translate(grid_->Worksheet(), key)) {
        return true;
    }
    return KvPropertyPage::PreTranslateMessage(key);
}

}  // namespace kvopt

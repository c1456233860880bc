#include "kvopt/platform/property_page.h"

#include <utility>

#include "kvopt/platform/property_sheet.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

CPropertyPage::CPropertyPage(int templateNumber) : CDialog(templateNumber, nullptr) {}

CPropertyPage::~CPropertyPage() {
    if (sheet_ != nullptr) {
        sheet_->RemovePage(this);
    }
}

std::wstring CPropertyPage::PageTitle() const {
    return title_.empty() ? KvStdString::ToWide(Template().caption) : title_;
}

void CPropertyPage::StorePageTitle(std::wstring title) {
    if (title != title_) {
        title_ = std::move(title);
        NotifyViews(WindowChange::Text);
    }
}

bool CPropertyPage::OnSetActive() {
    // OnInitDialog has just shown the members, and the page may have written its controls since.
    if (!std::exchange(firstActive_, false)) {
        UpdateData(false);
    }
    return true;
}

bool CPropertyPage::OnKillActive() {
    UpdateData(true);
    return true;
}

bool CPropertyPage::OnApply() {
    OnOK();
    return true;
}

void CPropertyPage::OnOK() {}

void CPropertyPage::OnCancel() {}

int CPropertyPage::OnWizardNext() {
    return 0;
}

int CPropertyPage::OnWizardBack() {
    return 0;
}

bool CPropertyPage::OnWizardFinish() {
    return true;
}

void CPropertyPage::SetModified(bool modified) {
    const bool before = sheet_ != nullptr && sheet_->IsApplyEnabled();
    modified_ = modified;
    if (sheet_ != nullptr && sheet_->IsApplyEnabled() != before) {
        sheet_->NotifyViews(WindowChange::Buttons);
    }
}

bool CPropertyPage::IsReachable() const {
    if (!CDialog::IsReachable()) {
        return false;
    }
    return sheet_ == nullptr || !sheet_->IsRunning() ||
           (sheet_->IsReachable() && sheet_->GetActivePage() == this);
}

void CPropertyPage::OnDestroyWindow() {
    firstActive_ = true;
    CDialog::OnDestroyWindow();
}

}  // namespace kvopt

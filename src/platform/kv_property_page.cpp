#include "kvopt/platform/kv_property_page.h"

#include <utility>

#include "kvopt/platform/desktop.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/kv_property_sheet.h"
#include "kvopt/platform/property_page_helper.h"
#include "page_updates.h"

namespace kvopt {

KvPropertyPage::KvPropertyPage(unsigned templateNumber, unsigned captionNumber,
                               BasePropertyPageHelper* helper, unsigned helpTopic)
    : CPropertyPage(static_cast<int>(templateNumber)),
      helper_(helper),
      captionNumber_(captionNumber),
      helpTopic_(helpTopic) {}

KvPropertyPage::~KvPropertyPage() = default;

void KvPropertyPage::Changed() {
    MarkChanged(*this, changed_, helper_);
}

void KvPropertyPage::Unchanged() {
    MarkUnchanged(*this, changed_, helper_);
}

bool KvPropertyPage::IsChanged() const {
    return changed_;
}

void KvPropertyPage::OnHelp() {
    if (HasHelp()) {
        Desktop::Instance().ShowHelp(helpTopic_);
    }
}

void KvPropertyPage::SetPropertyPageHelper(BasePropertyPageHelper* helper) {
    if (changed_ && helper_ != nullptr) {
        helper_->RemoveUpdate();
    }
    helper_ = helper;
    if (changed_ && helper_ != nullptr) {
        helper_->AddUpdate();
    }
}

BasePropertyPageHelper* KvPropertyPage::GetPropertyPageHelper() const {
    return helper_;
}

void KvPropertyPage::AddRef() {
    ++references_;
}

void KvPropertyPage::ReleaseRef() {
    if (references_ > 0) {
        --references_;
    }
}

int KvPropertyPage::CountRefs() const {
    return references_;
}

bool KvPropertyPage::OnHelpInfo() {
    OnHelp();
    return true;
}

bool KvPropertyPage::OnInitDialog() {
    return CPropertyPage::OnInitDialog();
}

bool KvPropertyPage::OnApply() {
    return ApplyPage(*this, helper_);
}

void KvPropertyPage::OnCancel() {
    Unchanged();
    CPropertyPage::OnCancel();
}

bool KvPropertyPage::OnWizardFinish() {
    Unchanged();
    return CPropertyPage::OnWizardFinish();
}

KvPropertySheet* KvPropertyPage::GetSheet() const {
    return dynamic_cast<KvPropertySheet*>(Sheet());
}

void KvPropertyPage::SetPageTitle(const wchar_t* title) {
    StorePageTitle(title != nullptr ? title : L"");
}

void KvPropertyPage::GetMessageMap(MessageMap& map) {
    CPropertyPage::GetMessageMap(map);
    map.OnCommand(kCommandHelp, [this] { OnHelp(); });
}

}  // namespace kvopt

#include "kvopt/options/kv_xtp_property_page.h"

#include "kvopt/platform/desktop.h"
#include "kvopt/platform/keys.h"
#include "platform/page_updates.h"

namespace kvopt {

KvXtpPropertyPage::KvXtpPropertyPage(unsigned templateNumber, unsigned captionNumber,
                                     BasePropertyPageHelper* helper, unsigned helpTopic)
    : CXTPPropertyPage(static_cast<int>(templateNumber)),
      helper_(helper),
      captionNumber_(captionNumber),
      helpTopic_(helpTopic) {}

KvXtpPropertyPage::~KvXtpPropertyPage() = default;

void KvXtpPropertyPage::OnHelp() {
    if (HasHelp()) {
        Desktop::Instance().ShowHelp(helpTopic_);
    }
}

void KvXtpPropertyPage::Changed() {
    MarkChanged(*this, changed_, helper_);
}

void KvXtpPropertyPage::Unchanged() {
    MarkUnchanged(*this, changed_, helper_);
}

bool KvXtpPropertyPage::IsChanged() const {
    return changed_;
}

bool KvXtpPropertyPage::OnApply() {
    return ApplyPage(*this, helper_);
}

void KvXtpPropertyPage::GetMessageMap(MessageMap& map) {
    CXTPPropertyPage::GetMessageMap(map);
    map.OnCommand(kCommandHelp, [this] { OnHelp(); });
}

}  // namespace kvopt

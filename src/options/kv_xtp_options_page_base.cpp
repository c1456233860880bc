#include "kvopt/options/kv_xtp_options_page_base.h"

namespace kvopt {

namespace {

constexpr unsigned kTemplate = 6222;

}  // namespace

KvXtpOptionsPageBase::KvXtpOptionsPageBase(BasePropertyPageHelper* helper, unsigned helpTopic)
    : GridPage(kTemplate, helper, helpTopic) {}

KvXtpOptionsPageBase::~KvXtpOptionsPageBase() = default;

bool KvXtpOptionsPageBase::OnInitDialog() {
    CXTPPropertyPage::OnInitDialog();
    CreateHeader();
    NameWindow();
    CreateGrid();
    return true;
}

}  // namespace kvopt

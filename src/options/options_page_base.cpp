#include "kvopt/options/options_page_base.h"

namespace kvopt {

namespace {

constexpr unsigned kTemplate = 6350;

}  // namespace

OptionsPageBase::OptionsPageBase(BasePropertyPageHelper* helper, unsigned helpTopic)
    : GridPage(kTemplate, helper, helpTopic) {}

OptionsPageBase::~OptionsPageBase() = default;

bool OptionsPageBase::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    NameWindow();
    CreateHeader();
    CreateGrid();
    return true;
}

}  // namespace kvopt

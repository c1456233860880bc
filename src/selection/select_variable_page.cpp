#include "kvopt/selection/select_variable_page.h"

#include "kvopt/axes/fill_box.h"
#include "kvopt/platform.h"
#include "kvopt/text.h"

namespace kvopt {

namespace {

constexpr unsigned kTemplate = 6185;
constexpr int kFactor = 6049;

}  // namespace

SelectVariablePage::SelectVariablePage(const Investigation* investigation, std::string& variable,
                                       BasePropertyPageHelper* helper)
    : KvPropertyPage(kTemplate, 0, helper, kNoHelp),
      mInvestigation(investigation),
      mVariable(variable) {}

SelectVariablePage::~SelectVariablePage() = default;

void SelectVariablePage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    map.OnSelectionChanged(kFactor, [this] { Changed(); });
}

void SelectVariablePage::DoDataExchange(CDataExchange& exchange) {
    KvPropertyPage::DoDataExchange(exchange);
    DDX_Control(exchange, kFactor, mFactor);
}

void SelectVariablePage::OnDestroyWindow() {
    mFactor = nullptr;
    KvPropertyPage::OnDestroyWindow();
}

bool SelectVariablePage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    FillBox(mInvestigation, FillBox::Ordinary)
        .FillFactorCLB(mFactor, KvStdString::ToWide(mVariable).c_str());
    return true;
}

bool SelectVariablePage::OnApply() {
    mVariable = KvStdString::ToUtf8(mFactor->GetText());
    return KvPropertyPage::OnApply();
}

}  // namespace kvopt

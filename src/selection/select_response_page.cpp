#include "kvopt/selection/select_response_page.h"

#include <string>

#include "kvopt/axes/fill_box.h"
#include "kvopt/platform.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "selection_texts.h"

namespace kvopt {

namespace {

constexpr unsigned kTemplate = 6184;
constexpr unsigned kHelpTopic = 431;
constexpr int kResponse = 6048;

}  // namespace

SelectResponsePage::SelectResponsePage(const Investigation* investigation, SelectResponseBase* base,
                                       BasePropertyPageHelper* helper, bool extended,
                                       bool allowNone)
    : KvPropertyPage(kTemplate, 0, helper, kHelpTopic),
      mInvestigation(investigation),
      mExtended(extended),
      mAllowNone(allowNone),
      mBase(base) {
    if (mBase == nullptr) {
        throw InvalidArgument("SelectResponsePage: the owner of the selection is null");
    }
}

SelectResponsePage::~SelectResponsePage() = default;

void SelectResponsePage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    map.OnSelectionChanged(kResponse, [this] { Changed(); });
}

void SelectResponsePage::DoDataExchange(CDataExchange& exchange) {
    KvPropertyPage::DoDataExchange(exchange);
    DDX_Control(exchange, kResponse, mResponse);
}

void SelectResponsePage::OnDestroyWindow() {
    mResponse = nullptr;
    KvPropertyPage::OnDestroyWindow();
}

bool SelectResponsePage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    const std::wstring current = KvStdString::ToWide(mBase->GetResponse());
    FillBox(mInvestigation, mExtended ? FillBox::Extended : FillBox::Ordinary)
        .FillResponseCLB(mResponse, current.c_str());
    if (mAllowNone) {
        mResponse->InsertString(0, texts::kNoResponseSelected.Wide());
        const int place = mResponse->FindStringExact(-1, current);
        mResponse->SetCurSel(place < 0 ? 0 : place);
    }
    return true;
}

bool SelectResponsePage::OnApply() {
    const std::wstring chosen = mResponse->GetText();
    mBase->SetResponse(chosen == texts::kNoResponseSelected.Wide() ? std::string()
                                                                   : KvStdString::ToUtf8(chosen));
    return KvPropertyPage::OnApply();
}

}  // namespace kvopt

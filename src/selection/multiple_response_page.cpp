#include "kvopt/selection/multiple_response_page.h"

#include <algorithm>
#include <numeric>

#include "kvopt/platform.h"
#include "kvopt/selection/handle_box.h"
#include "kvopt/selection/select_responses.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "selection/list_names.h"
#include "selection_texts.h"

namespace kvopt {

namespace {

constexpr int kAdd = 6005;
constexpr int kRemove = 6017;
constexpr int kAvailable = 6076;
constexpr int kSelected = 6078;
constexpr int kAvailableLabel = 6215;
constexpr int kSelectedLabel = 6216;
constexpr int kHeading = 6303;
constexpr int kReset = 6313;

void SelectFirstWhereNone(CListBox& list) {
    if (list.GetSelCount() == 0 && list.GetCount() > 0) {
        list.SetSel(0);
    }
}

}  // namespace

MultipleResponsePage::MultipleResponsePage(const Investigation* investigation,
                                           SelectResponses& responses, unsigned templateNumber,
                                           int maxSelections, BasePropertyPageHelper* helper,
                                           unsigned helpTopic)
    : KvPropertyPage(templateNumber, 0, helper, helpTopic),
      mResponses(responses),
      mInvestigation(investigation) {
    mResponses.AssertSelectedResponses(false);
    mMaxSelections = BoundFor(maxSelections);
    if (mResponses.GetType() != texts::kSelectionResponses.Text()) {
        SetPageTitle(FormatWide(texts::kSelectTitle, mResponses.GetType()).c_str());
    }
}

MultipleResponsePage::~MultipleResponsePage() = default;

int MultipleResponsePage::BoundFor(int maxSelections) const {
    return maxSelections >= 0 ? maxSelections
                              : static_cast<int>(mResponses.GetSelectedResponses().size() +
                                                 mResponses.GetUnselectedResponses().size());
}

void MultipleResponsePage::SetDefauts(const std::vector<std::string>& names) {
    mDefaults = names;
}

void MultipleResponsePage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    map.OnClicked(kAdd, [this] { OnBAddResponse(); });
    map.OnClicked(kRemove, [this] { OnBRemoveResponse(); });
    map.OnClicked(kReset, [this] { OnResetButton(); });
    map.OnDoubleClicked(kAvailable, [this] { OnBAddResponse(); });
    map.OnDoubleClicked(kSelected, [this] { OnBRemoveResponse(); });
}

void MultipleResponsePage::DoDataExchange(CDataExchange& exchange) {
    KvPropertyPage::DoDataExchange(exchange);
    DDX_Control(exchange, kRemove, mRemoveButton);
    DDX_Control(exchange, kAdd, mAddButton);
    DDX_Control(exchange, kSelected, mSelectedList);
    DDX_Control(exchange, kAvailable, mAvailableList);
}

void MultipleResponsePage::OnDestroyWindow() {
    mRemoveButton = nullptr;
    mAddButton = nullptr;
    mSelectedList = nullptr;
    mAvailableList = nullptr;
    KvPropertyPage::OnDestroyWindow();
}

void MultipleResponsePage::SetLabel(int number, const std::wstring& text) {
    if (CControl* label = GetDlgItem(number)) {
        label->SetText(text);
    }
}

bool MultipleResponsePage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    GetDlgItem(kReset)->ShowWindow(!mDefaults.empty() && !mReadOnly);
    const std::string& noun = mResponses.GetType();
    SetLabel(kHeading, FormatWide(texts::kSelectHeading, noun));
    SetLabel(kAvailableLabel, FormatWide(texts::kAvailableLabel, noun));
    SetLabel(kSelectedLabel, FormatWide(texts::kSelectedLabel, noun));
    TransferToPage();
    ShowMoved();
    FillAvailableOrder();
    return true;
}

void MultipleResponsePage::TransferToPage() {
    FillList(*mSelectedList, mResponses.GetSelectedResponses());
    FillList(*mAvailableList, mResponses.GetUnselectedResponses());
}

/// Both lists have something marked, where they hold anything, and the arrows say what can move.
void MultipleResponsePage::ShowMoved() {
    SelectFirstWhereNone(*mSelectedList);
    SelectFirstWhereNone(*mAvailableList);
    EnableAddButton();
    EnableRemoveButton();
}

int MultipleResponsePage::GetResponseIndex(const char* name) const {
    int index = 0;
    if (mResponses.IsSpecial()) {
        std::vector<std::string> items;
        std::string noun;
        mResponses.GetSelectResponseBase()->GetSpecialAvailable(items, noun);
        const auto found = std::find(items.begin(), items.end(), name);
        index = found != items.end() ? static_cast<int>(found - items.begin()) + 1 : 0;
    } else if (mInvestigation != nullptr) {
        index = mInvestigation->GetResponseManager()->GetIndex(name, ResponseEx::Any);
    }
    return index > 0 ? index : -1;
}

void MultipleResponsePage::FillAvailableOrder() {
    mAvailableOrder.assign(1, 0);
    for (const std::string& name : NamesOf(*mAvailableList)) {
        mAvailableOrder.push_back(GetResponseIndex(name.c_str()));
    }
}

int MultipleResponsePage::AddSelectedIndex(int index) {
    const int natural =
        GetResponseIndex(KvStdString::ToUtf8(mSelectedList->GetItemText(index)).c_str());
    const auto place = std::find_if(mAvailableOrder.begin() + 1, mAvailableOrder.end(),
                                    [natural](int other) { return other > natural; });
    const auto position = place - mAvailableOrder.begin();
    mAvailableOrder.insert(place, natural);
    return static_cast<int>(position) - 1;
}

void MultipleResponsePage::OnBAddResponse() {
    if (mReadOnly) {
        return;
    }
    const int selected = mSelectedList->GetCount();
    if (selected < mMaxSelections) {
        AddMarked(mMaxSelections - selected);
    } else if (mMaxSelections == 1 && mAvailableList->GetSelCount() > 0) {
        ReplaceSelection();
    }
    ShowMoved();
    Changed();
}

void MultipleResponsePage::AddMarked(int room) {
    std::vector<int> marked = mAvailableList->GetSelItems();
    while (static_cast<int>(marked.size()) > room) {
        mAvailableList->SetSel(marked.back(), false);
        marked.pop_back();
    }
    // Each by its position at the start, without allowing for the ones removed before it: the order
    // serves for putting entries back alone. A position behind the end takes the last one.
    for (const int index : marked) {
        const std::size_t position =
            std::min(static_cast<std::size_t>(index) + 1, mAvailableOrder.size() - 1);
        if (position > 0) {
            mAvailableOrder.erase(mAvailableOrder.begin() + static_cast<std::ptrdiff_t>(position));
        }
    }
    HandleBox::MoveSelItem(mAvailableList, mSelectedList, false, -1);
}

void MultipleResponsePage::ReplaceSelection() {
    const std::wstring chosen = mAvailableList->GetItemText(mAvailableList->GetSelItems().front());
    MoveAllBack();
    mAvailableList->SetSel(-1, false);
    mAvailableList->SetSel(mAvailableList->FindStringExact(-1, chosen));
    HandleBox::MoveSelItem(mAvailableList, mSelectedList, false, -1);
    FillAvailableOrder();
}

void MultipleResponsePage::MoveAllBack() {
    std::vector<int> all(static_cast<std::size_t>(mSelectedList->GetCount()));
    std::iota(all.begin(), all.end(), 0);
    MoveResponse(all.data(), static_cast<int>(all.size()));
}

void MultipleResponsePage::OnBRemoveResponse() {
    const std::vector<int> marked = mSelectedList->GetSelItems();
    if (!mReadOnly && !marked.empty()) {
        MoveResponse(marked.data(), static_cast<int>(marked.size()));
    }
}

void MultipleResponsePage::MoveResponse(const int* indices, int count) {
    mSelectedList->SetSel(-1, false);
    for (int at = count - 1; at >= 0; --at) {
        mSelectedList->SetSel(indices[at]);
        const int place = AddSelectedIndex(indices[at]);
        HandleBox::MoveSelItem(mSelectedList, mAvailableList, false, place);
    }
    ShowMoved();
    Changed();
}

void MultipleResponsePage::EnableAddButton() {
    const bool full = mSelectedList->GetCount() >= mMaxSelections && mMaxSelections != 1;
    mAddButton->EnableWindow(!full && !mReadOnly && mAvailableList->GetSelCount() > 0);
}

void MultipleResponsePage::EnableRemoveButton() {
    // The one selection can only be replaced.
    mRemoveButton->EnableWindow(mMaxSelections != 1 && !mReadOnly &&
                                mSelectedList->GetSelCount() > 0);
}

void MultipleResponsePage::SetMaxSelections(int maxSelections) {
    mMaxSelections = BoundFor(maxSelections);
    if (mSelectedList == nullptr) {
        return;
    }
    while (mSelectedList->GetCount() > mMaxSelections) {
        const int last = mSelectedList->GetCount() - 1;
        MoveResponse(&last, 1);
    }
    EnableAddButton();
    EnableRemoveButton();
}

void MultipleResponsePage::OnResetButton() {
    if (mReadOnly) {
        return;
    }
    mResponses.SetResponses(mDefaults);
    TransferToPage();
    ShowMoved();
    FillAvailableOrder();
    Changed();
}

bool MultipleResponsePage::ApplyPage() {
    if (mSelectedList->GetCount() == 0) {
        if (GetSheet() != nullptr) {
            GetSheet()->SetActivePage(this);
        }
        ShowMessage(this, FormatWide(texts::kNothingSelected, mResponses.GetType()),
                    BoxStyle::Error);
        GotoDlgCtrl(mSelectedList);
        return false;
    }
    TransferFromPage();
    return true;
}

void MultipleResponsePage::TransferFromPage() {
    mResponses.SetUnselectedResponses(NamesOf(*mAvailableList));
    const std::vector<std::string> selected = NamesOf(*mSelectedList);
    mResponses.SetSelectedResponses(selected);
    if (Investigation* active = Investigation::GetActiveInvestigation()) {
        active->SetSelectedResponses(selected);
    }
    SelectResponseBase* base = mResponses.GetSelectResponseBase();
    if (base != nullptr && (base->UseMultipleResponses() || selected.size() == 1)) {
        base->SetSelResponses(selected);
    }
}

bool MultipleResponsePage::OnApply() {
    if (IsChanged() && !ApplyPage()) {
        return false;
    }
    return KvPropertyPage::OnApply();
}

int MultipleResponsePage::OnWizardNext() {
    return ApplyPage() ? KvPropertyPage::OnWizardNext() : -1;
}

}  // namespace kvopt

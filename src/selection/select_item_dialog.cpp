#include "kvopt/selection/select_item_dialog.h"

#include <algorithm>

#include "kvopt/platform.h"
#include "kvopt/text.h"
#include "selection/list_names.h"
#include "selection_texts.h"

namespace kvopt {

namespace {

constexpr int kTemplate = 6150;
constexpr int kAdd = 6005;
constexpr int kRemove = 6017;
constexpr int kAvailable = 6075;
constexpr int kSelected = 6077;
constexpr int kHeading = 6145;
constexpr int kAvailableLabel = 6144;
constexpr int kSelectedLabel = 6146;

/// Moves the first `count` marked entries to the end of `to`; the others stay marked.
void AppendMarked(CListBox& from, CListBox& to, int count) {
    std::vector<int> moved = from.GetSelItems();
    moved.resize(std::min(moved.size(), static_cast<std::size_t>(count)));
    for (const int index : moved) {
        to.AddString(from.GetItemText(index));
    }
    for (auto index = moved.rbegin(); index != moved.rend(); ++index) {
        from.DeleteString(*index);
    }
}

}  // namespace

SelectItemDialog::SelectItemDialog(std::vector<std::string>& available,
                                   std::vector<std::string>& selected, const std::string& noun,
                                   unsigned limit, CWnd* parent)
    : CDialog(kTemplate, parent),
      mAvailable(&available),
      mSelected(&selected),
      mNoun(noun),
      mLimit(static_cast<int>(limit)) {}

SelectItemDialog::~SelectItemDialog() = default;

void SelectItemDialog::GetMessageMap(MessageMap& map) {
    CDialog::GetMessageMap(map);
    map.OnClicked(kAdd, [this] { OnAdd(); });
    map.OnClicked(kRemove, [this] { OnRemove(); });
    map.OnDoubleClicked(kAvailable, [this] { OnAdd(); });
    map.OnDoubleClicked(kSelected, [this] { OnRemove(); });
    map.OnSelectionChanged(kAvailable, [this] { EnableArrows(); });
    map.OnSelectionChanged(kSelected, [this] { EnableArrows(); });
}

void SelectItemDialog::DoDataExchange(CDataExchange& exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kAvailable, mAvailableList);
    DDX_Control(exchange, kSelected, mSelectedList);
    DDX_Control(exchange, kAdd, mAddButton);
    DDX_Control(exchange, kRemove, mRemoveButton);
}

void SelectItemDialog::OnDestroyWindow() {
    mAvailableList = nullptr;
    mSelectedList = nullptr;
    mAddButton = nullptr;
    mRemoveButton = nullptr;
    CDialog::OnDestroyWindow();
}

bool SelectItemDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    GetDlgItem(kHeading)->SetText(FormatWide(texts::kSelectItemsHeading, mNoun));
    GetDlgItem(kAvailableLabel)->SetText(FormatWide(texts::kAvailableLabel, mNoun));
    GetDlgItem(kSelectedLabel)->SetText(FormatWide(texts::kSelectedLabel, mNoun));
    FillList(*mAvailableList, *mAvailable);
    FillList(*mSelectedList, *mSelected);
    EnableArrows();
    return true;
}

/// How many names may still be selected.
int SelectItemDialog::Room() const {
    return mLimit < 0 ? mAvailableList->GetCount()
                      : std::max(0, mLimit - mSelectedList->GetCount());
}

void SelectItemDialog::OnAdd() {
    AppendMarked(*mAvailableList, *mSelectedList, Room());
    EnableArrows();
}

void SelectItemDialog::OnRemove() {
    AppendMarked(*mSelectedList, *mAvailableList, mSelectedList->GetCount());
    EnableArrows();
}

void SelectItemDialog::EnableArrows() {
    mAddButton->EnableWindow(mAvailableList->GetSelCount() > 0);
    mRemoveButton->EnableWindow(mSelectedList->GetSelCount() > 0);
}

void SelectItemDialog::OnOK() {
    *mAvailable = NamesOf(*mAvailableList);
    mSelected->clear();
    if (mSelectedList->GetCount() == 0) {
        ShowMessage(this, texts::kSelectOneItem.Wide(), BoxStyle::Error);
        return;
    }
    *mSelected = NamesOf(*mSelectedList);
    CDialog::OnOK();
}

}  // namespace kvopt

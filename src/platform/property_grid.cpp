#include "kvopt/platform/property_grid.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "kvopt/platform/property_grid_values.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {

namespace {

using Items = std::vector<std::unique_ptr<CXTPPropertyGridItem>>;
using RowList = std::vector<CXTPPropertyGridItem*>;

void AddRows(const Items& items, RowList& rows) {
    for (const auto& item : items) {
        rows.push_back(item.get());
        AddRows(item->Children(), rows);
    }
}

/// The row itself when it is shown, else the nearest above it that is; null without one.
CXTPPropertyGridItem* ShownOrAbove(CXTPPropertyGridItem* item) {
    while (item != nullptr && !item->IsShown()) {
        item = item->Parent();
    }
    return item;
}

}  // namespace

CXTPPropertyGrid::CXTPPropertyGrid(CDialog& dialog, const ControlTemplate& what)
    : CControl(dialog, what) {}

CXTPPropertyGrid::~CXTPPropertyGrid() = default;

CXTPPropertyGridItem& CXTPPropertyGrid::AddCategory(std::wstring_view literal) {
    auto& added =
        *categories_.emplace_back(std::make_unique<CXTPPropertyGridItemCategory>(literal));
    added.grid_ = this;
    OnRowsChanged();
    return added;
}

void CXTPPropertyGrid::ResetContent() {
    // The views let go of the rows before they die.
    const Items gone = std::exchange(categories_, {});
    selected_ = nullptr;
    edited_ = nullptr;
    editorText_.clear();
    top_ = 0;
    NotifyViews(WindowChange::Items);
}

RowList CXTPPropertyGrid::Rows() const {
    RowList rows;
    AddRows(categories_, rows);
    return rows;
}

RowList CXTPPropertyGrid::ShownRows() const {
    RowList rows = Rows();
    std::erase_if(rows, [](const CXTPPropertyGridItem* row) { return !row->IsShown(); });
    return rows;
}

CXTPPropertyGridItem* CXTPPropertyGrid::FindItem(int id) const {
    for (CXTPPropertyGridItem* row : Rows()) {
        if (id != 0 && row->GetID() == id) {
            return row;
        }
    }
    return nullptr;
}

CXTPPropertyGridItem* CXTPPropertyGrid::FindItem(std::wstring_view caption) const {
    for (CXTPPropertyGridItem* row : Rows()) {
        if (row->GetCaption() == caption) {
            return row;
        }
    }
    return nullptr;
}

int CXTPPropertyGrid::Clamped(int top) const {
    return std::clamp(top, 0, std::max(static_cast<int>(ShownRows().size()) - 1, 0));
}

int CXTPPropertyGrid::GetTopIndex() const {
    return Clamped(top_);
}

void CXTPPropertyGrid::SetTopIndex(int index) {
    const int before = GetTopIndex();
    top_ = Clamped(index);
    if (top_ != before) {
        NotifyViews(WindowChange::TopRow);
    }
}

void CXTPPropertyGrid::SetSelectedItem(CXTPPropertyGridItem* item) {
    CXTPPropertyGridItem* wanted = Holds(item) && item->IsShown() ? item : nullptr;
    if (wanted != selected_) {
        selected_ = wanted;
        NotifyViews(WindowChange::Selection);
    }
}

void CXTPPropertyGrid::ShowHelp(bool show) {
    if (show != helpVisible_) {
        helpVisible_ = show;
        NotifyViews(WindowChange::Pane);
    }
}

void CXTPPropertyGrid::SetViewDivider(double share) {
    if (!(share > 0.0 && share < 1.0)) {
        throw InvalidArgument("CXTPPropertyGrid::SetViewDivider: the share is not within 0 and 1");
    }
    if (share != divider_) {
        divider_ = share;
        NotifyViews(WindowChange::Range);
    }
}

void CXTPPropertyGrid::CloseEditor() {
    if (edited_ != nullptr) {
        edited_ = nullptr;
        editorText_.clear();
        NotifyViews(WindowChange::Cells);
    }
}

void CXTPPropertyGrid::CommitEdit() {
    CXTPPropertyGridItem* item = edited_;
    const std::wstring text = editorText_;
    CloseEditor();
    if (item != nullptr && text != item->GetValue()) {
        LetUserChange(*item, [item, &text] { item->SetValue(text); });
    }
}

void CXTPPropertyGrid::OnLosesFocus() {
    CommitEdit();
}

void CXTPPropertyGrid::OnRowsChanged() {
    selected_ = ShownOrAbove(selected_);
    if (edited_ != nullptr && !edited_->IsShown()) {
        CloseEditor();
    }
    NotifyViews(WindowChange::Items);
}

void CXTPPropertyGrid::OnCellsChanged() {
    if (edited_ != nullptr && edited_->GetReadOnly()) {
        CloseEditor();
    }
    NotifyViews(WindowChange::Cells);
}

bool CXTPPropertyGrid::Holds(const CXTPPropertyGridItem* item) const {
    const RowList rows = Rows();
    return std::find(rows.begin(), rows.end(), item) != rows.end();
}

bool CXTPPropertyGrid::ActOn(CXTPPropertyGridItem* item, const std::function<bool()>& action) {
    return Holds(item) && item->IsShown() && Act([&] {
               if (edited_ != item) {
                   CommitEdit();
               }
               // What ran for the committed row may have filled the grid anew.
               if (!Holds(item) || !item->IsShown()) {
                   return false;
               }
               SetSelectedItem(item);
               return action();
           });
}

void CXTPPropertyGrid::LetUserChange(CXTPPropertyGridItem& item,
                                     const std::function<void()>& change) {
    const unsigned before = item.changes_;
    change();
    // A message box of the row may have let somebody fill the grid anew.
    if (Holds(&item) && item.changes_ != before && handler_) {
        const NotifyHandler told = handler_;
        told(kGridValueChanged, &item);
    }
}

bool CXTPPropertyGrid::UserSelect(CXTPPropertyGridItem* item) {
    return ActOn(item, [] { return true; });
}

bool CXTPPropertyGrid::UserExpand(CXTPPropertyGridItem* item, bool expand) {
    return ActOn(item, [item, expand] {
        if (item->Children().empty()) {
            return false;
        }
        expand ? item->Expand() : item->Collapse();
        return true;
    });
}

bool CXTPPropertyGrid::UserToggle(CXTPPropertyGridItem* item) {
    return ActOn(item, [item, this] {
        auto* toggled = dynamic_cast<CXTPPropertyGridItemBool*>(item);
        if (toggled == nullptr || toggled->GetReadOnly()) {
            return false;
        }
        LetUserChange(*toggled, [toggled] { toggled->Choose(1 - toggled->CurrentChoice()); });
        return true;
    });
}

bool CXTPPropertyGrid::UserPick(CXTPPropertyGridItem* item, int choice) {
    return ActOn(item, [item, choice, this] {
        const std::vector<PropertyGridChoice> choices = item->Choices();
        if (item->GetReadOnly() || choice < 0 || choice >= static_cast<int>(choices.size()) ||
            !choices[static_cast<std::size_t>(choice)].enabled) {
            return false;
        }
        if (choice != item->CurrentChoice()) {
            LetUserChange(*item, [item, choice] { item->Choose(choice); });
        }
        return true;
    });
}

bool CXTPPropertyGrid::UserBeginEdit(CXTPPropertyGridItem* item) {
    return ActOn(item, [item, this] {
        if (item->GetReadOnly() || !item->TakesText()) {
            return false;
        }
        if (edited_ == nullptr) {
            edited_ = item;
            editorText_ = item->GetValue();
            NotifyViews(WindowChange::Cells);
        }
        return true;
    });
}

bool CXTPPropertyGrid::UserEdit(std::wstring_view text) {
    return edited_ != nullptr && Act([&] {
               if (edited_ == nullptr) {
                   return false;
               }
               editorText_ = text;
               return true;
           });
}

bool CXTPPropertyGrid::UserCommit() {
    return edited_ != nullptr && Act([this] {
               CommitEdit();
               return true;
           });
}

bool CXTPPropertyGrid::UserAbandon() {
    return edited_ != nullptr && Act([this] {
               CloseEditor();
               return true;
           });
}

bool CXTPPropertyGrid::UserScroll(int top) {
    if (!IsUsable()) {
        return false;
    }
    top_ = Clamped(top);
    return true;
}

}  // namespace kvopt

#include "kvopt/platform/combo_box.h"

namespace kvopt {

void CComboBox::SetCurSel(int index) {
    const int wanted = HasIndex(index) ? index : -1;
    const std::wstring before = GetText();
    const bool moves = wanted != selected_;
    selected_ = wanted;
    if (IsEditable()) {
        StoreText(wanted >= 0 ? GetItemText(wanted) : std::wstring());
    }
    if (moves || GetText() != before) {
        SelectionChanged();
    }
}

int CComboBox::SelectString(int start, std::wstring_view prefix) {
    const int found = FindString(start, prefix);
    if (found >= 0) {
        SetCurSel(found);
    }
    return found;
}

std::wstring CComboBox::GetText() const {
    if (IsEditable()) {
        return CWnd::GetText();
    }
    return HasIndex(selected_) ? GetItemText(selected_) : std::wstring();
}

void CComboBox::SetText(std::wstring_view text) {
    const int found = FindStringExact(-1, text);
    if (!IsEditable()) {
        SetCurSel(found);
        return;
    }
    if (found != selected_ || text != GetText()) {
        selected_ = found;
        StoreText(text);
        SelectionChanged();
    }
}

bool CComboBox::UserPick(int index) {
    if (!HasIndex(index)) {
        return false;
    }
    return Act([this, index] {
        // The handlers that ran while the focus moved may have changed the list.
        if (!HasIndex(index)) {
            return false;
        }
        if (index != selected_ || GetText() != GetItemText(index)) {
            SetCurSel(index);
            Notify(Notification::SelectionChanged);
        }
        return true;
    });
}

bool CComboBox::UserEdit(std::wstring_view text) {
    if (!IsEditable()) {
        return false;
    }
    return Act([&] {
        SetText(text);
        Notify(Notification::Changed);
        return true;
    });
}

void CComboBox::OnItemInserted(int index) {
    if (selected_ >= index) {
        ++selected_;
    }
}

void CComboBox::OnItemDeleted(int index) {
    if (selected_ == index) {
        selected_ = -1;
    } else if (selected_ > index) {
        --selected_;
    }
}

void CComboBox::OnReset() {
    selected_ = -1;
    StoreText({});
}

}  // namespace kvopt

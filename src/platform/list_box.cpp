#include "kvopt/platform/list_box.h"

#include <algorithm>
#include <cstddef>

namespace kvopt {

void CListBox::SetCurSel(int index) {
    const int wanted = HasIndex(index) ? index : -1;
    if (wanted != current_) {
        current_ = wanted;
        SelectionChanged();
    }
}

bool CListBox::GetSel(int index) const {
    if (!HasIndex(index)) {
        return false;
    }
    return IsMultiple() ? marked_[static_cast<std::size_t>(index)] : index == current_;
}

void CListBox::SetSel(int index, bool marked) {
    if (!IsMultiple()) {
        if (marked && HasIndex(index)) {
            SetCurSel(index);
        } else if (!marked && (index == -1 || index == current_)) {
            SetCurSel(-1);
        }
        return;
    }
    std::vector<bool> wanted = marked_;
    int caret = current_;
    if (index == -1) {
        wanted.assign(wanted.size(), marked);
    } else if (HasIndex(index)) {
        wanted[static_cast<std::size_t>(index)] = marked;
        caret = marked ? index : current_;
    }
    if (wanted != marked_ || caret != current_) {
        marked_ = std::move(wanted);
        current_ = caret;
        SelectionChanged();
    }
}

int CListBox::GetSelCount() const {
    return static_cast<int>(GetSelItems().size());
}

std::vector<int> CListBox::GetSelItems() const {
    std::vector<int> items;
    for (int i = 0; i < GetCount(); ++i) {
        if (GetSel(i)) {
            items.push_back(i);
        }
    }
    return items;
}

std::vector<std::wstring> CListBox::Texts() const {
    std::vector<std::wstring> texts;
    texts.reserve(static_cast<std::size_t>(GetCount()));
    for (int i = 0; i < GetCount(); ++i) {
        texts.push_back(GetItemText(i));
    }
    return texts;
}

bool CListBox::UserMark(const std::vector<int>& marked) {
    const auto canMark = [&] {
        return (IsMultiple() || marked.size() <= 1) &&
               std::all_of(marked.begin(), marked.end(), [this](int i) { return HasIndex(i); });
    };
    if (!canMark()) {
        return false;
    }
    return Act([&] {
        // The handlers that ran while the focus moved may have changed the list.
        if (!canMark()) {
            return false;
        }
        MarkAlone(marked);
        return true;
    });
}

void CListBox::MarkAlone(const std::vector<int>& marked) {
    const std::vector<int> before = GetSelItems();
    if (IsMultiple()) {
        marked_.assign(marked_.size(), false);
        for (const int index : marked) {
            marked_[static_cast<std::size_t>(index)] = true;
        }
    }
    if (!marked.empty() || !IsMultiple()) {
        current_ = marked.empty() ? -1 : marked.back();
    }
    if (GetSelItems() != before) {
        SelectionChanged();
        Notify(Notification::SelectionChanged);
    }
}

bool CListBox::UserDoubleClick(int index) {
    if (!HasIndex(index)) {
        return false;
    }
    return Act([this, index] {
        if (!HasIndex(index)) {
            return false;
        }
        MarkAlone({index});
        // The first click's handler may have taken the entry away or closed the list.
        if (HasIndex(index) && IsUsable()) {
            Notify(Notification::DoubleClicked);
        }
        return true;
    });
}

void CListBox::OnItemInserted(int index) {
    marked_.insert(marked_.begin() + index, false);
    if (current_ >= index) {
        ++current_;
    }
}

void CListBox::OnItemDeleted(int index) {
    marked_.erase(marked_.begin() + index);
    if (current_ == index) {
        current_ = -1;
    } else if (current_ > index) {
        --current_;
    }
}

void CListBox::OnReset() {
    marked_.clear();
    current_ = -1;
}

}  // namespace kvopt

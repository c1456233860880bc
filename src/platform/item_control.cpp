#include "kvopt/platform/item_control.h"

#include <cstddef>
#include <string>

#include "fold_case.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {

namespace {

/// The first entry that fits, beginning after `start` and wrapping round; -1 when none does.
template <class Fits>
int FindAfter(const std::vector<ListItem>& items, int start, const Fits& fits) {
    const int count = static_cast<int>(items.size());
    const int first = start >= 0 && start < count ? start + 1 : 0;
    for (int i = 0; i < count; ++i) {
        const int index = (first + i) % count;
        if (fits(items[static_cast<std::size_t>(index)].text)) {
            return index;
        }
    }
    return -1;
}

[[noreturn]] void ThrowNoEntry(const char* operation, int index, int count) {
    throw InvalidArgument(std::string(operation) + ": there is no entry " + std::to_string(index) +
                          " among " + std::to_string(count));
}

}  // namespace

int CItemControl::AddString(std::wstring_view text) {
    return InsertString(-1, text);
}

int CItemControl::InsertString(int index, std::wstring_view text) {
    const int place = index == -1 ? GetCount() : index;
    if (place < 0 || place > GetCount()) {
        ThrowNoEntry("CItemControl::InsertString", index, GetCount());
    }
    items_.insert(items_.begin() + place, ListItem{std::wstring(text), 0});
    OnItemInserted(place);
    ItemsChanged();
    return place;
}

void CItemControl::DeleteString(int index) {
    if (!HasIndex(index)) {
        ThrowNoEntry("CItemControl::DeleteString", index, GetCount());
    }
    items_.erase(items_.begin() + index);
    OnItemDeleted(index);
    ItemsChanged();
}

void CItemControl::ResetContent() {
    if (items_.empty() && GetText().empty()) {
        return;
    }
    items_.clear();
    OnReset();
    ItemsChanged();
}

const std::wstring& CItemControl::GetItemText(int index) const {
    if (!HasIndex(index)) {
        ThrowNoEntry("CItemControl::GetItemText", index, GetCount());
    }
    return items_[static_cast<std::size_t>(index)].text;
}

std::intptr_t CItemControl::GetItemData(int index) const {
    if (!HasIndex(index)) {
        ThrowNoEntry("CItemControl::GetItemData", index, GetCount());
    }
    return items_[static_cast<std::size_t>(index)].data;
}

void CItemControl::SetItemData(int index, std::intptr_t data) {
    if (!HasIndex(index)) {
        ThrowNoEntry("CItemControl::SetItemData", index, GetCount());
    }
    items_[static_cast<std::size_t>(index)].data = data;
}

int CItemControl::FindStringExact(int start, std::wstring_view text) const {
    return text.empty()
               ? -1
               : FindAfter(items_, start, [&](const std::wstring& entry) { return entry == text; });
}

int CItemControl::FindString(int start, std::wstring_view prefix) const {
    return prefix.empty() ? -1 : FindAfter(items_, start, [&](const std::wstring& entry) {
        return BeginsWith(entry, prefix);
    });
}

void CItemControl::SetRedraw(bool redraw) {
    redraw_ = redraw;
    if (redraw_ && stale_) {
        stale_ = false;
        NotifyViews(WindowChange::Items);
    }
}

void CItemControl::ItemsChanged() {
    if (redraw_) {
        NotifyViews(WindowChange::Items);
    } else {
        stale_ = true;
    }
}

void CItemControl::SelectionChanged() {
    if (redraw_) {
        NotifyViews(WindowChange::Selection);
    } else {
        stale_ = true;
    }
}

}  // namespace kvopt

#include "kvopt/selection/handle_box.h"

#include <string>
#include <vector>

#include "kvopt/platform/list_box.h"

namespace kvopt {

namespace {

int PlaceByData(const CListBox& to, std::intptr_t data) {
    for (int index = 0; index < to.GetCount(); ++index) {
        if (to.GetItemData(index) > data) {
            return index;
        }
    }
    return to.GetCount();
}

/// Takes one entry out of `from` and puts it into `to`; gives its place there.
int MoveOne(CListBox& from, int index, CListBox& to, bool byItemData, int place) {
    const std::wstring text = from.GetItemText(index);
    const std::intptr_t data = from.GetItemData(index);
    from.DeleteString(index);
    if (byItemData) {
        place = PlaceByData(to, data);
    } else if (place < 0 || place > to.GetCount()) {
        place = to.GetCount();
    }
    const int arrived = to.InsertString(place, text);
    to.SetItemData(arrived, data);
    return arrived;
}

void MoveMarked(CListBox& from, CListBox& to, bool byItemData, int position) {
    const std::vector<int> marked = from.GetSelItems();
    const int place = marked.size() == 1 && position != -1 ? position : to.GetCount();
    const bool nothingMarked = to.GetSelCount() == 0;
    // From the last to the first, always to the same place: that keeps their order.
    for (auto index = marked.rbegin(); index != marked.rend(); ++index) {
        const int arrived = MoveOne(from, *index, to, byItemData, place);
        if (nothingMarked) {
            to.SetSel(arrived);
        }
    }
}

void MoveCurrent(CListBox& from, CListBox& to, bool byItemData, int position) {
    const int index = from.GetCurSel();
    if (index < 0) {
        return;
    }
    const bool nothingSelected = to.GetCurSel() < 0;
    const int before = from.GetCount();
    const int place = position != -1 ? position : to.GetCount();
    const std::wstring text = from.GetItemText(index);
    MoveOne(from, index, to, byItemData, place);
    if (before > 1) {
        from.SetCurSel(index < from.GetCount() ? index : from.GetCount() - 1);
    }
    if (nothingSelected) {
        to.SetCurSel(to.FindStringExact(-1, text));
    }
}

}  // namespace

bool HandleBox::MoveSelItem(CListBox* from, CListBox* to, bool byItemData, int position) {
    if (from->IsMultiple()) {
        MoveMarked(*from, *to, byItemData, position);
    } else {
        MoveCurrent(*from, *to, byItemData, position);
    }
    return true;
}

}  // namespace kvopt

#include "kvopt/platform/kv_combo_box.h"

namespace kvopt {

int KvComboBox::AddItem(std::wstring_view text, std::intptr_t data) {
    const int index = AddString(text);
    SetItemData(index, data);
    return index;
}

int KvComboBox::SelectItem(std::intptr_t data) {
    int index = 0;
    while (index < GetCount() && GetItemData(index) != data) {
        ++index;
    }
    // Beyond the last entry nothing is selected.
    SetCurSel(index);
    return GetCurSel();
}

std::optional<std::intptr_t> KvComboBox::GetSelectedItem() const {
    const int selected = GetCurSel();
    return selected == -1 ? std::nullopt : std::optional(GetItemData(selected));
}

}  // namespace kvopt

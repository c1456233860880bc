#include "kvopt/platform/data_exchange.h"

#include <cstddef>
#include <vector>

#include "kvopt/platform/button.h"
#include "kvopt/platform/combo_box.h"
#include "kvopt/platform/edit.h"

namespace kvopt {

void DDX_Text(CDataExchange& exchange, int number, std::wstring& text) {
    CControl* control = exchange.dialog.GetDlgItem(number);
    if (control == nullptr) {
        return;
    }
    if (exchange.save) {
        text = control->GetText();
    } else if (auto* edit = dynamic_cast<CEdit*>(control)) {
        edit->ExchangeText(text);
    } else {
        control->SetText(text);
    }
}

void DDX_Check(CDataExchange& exchange, int number, bool& checked) {
    auto* button = exchange.dialog.Item<CButton>(number);
    if (button == nullptr) {
        return;
    }
    if (exchange.save) {
        checked = button->GetCheck();
    } else {
        button->SetCheck(checked);
    }
}

void DDX_Radio(CDataExchange& exchange, int first, int& index) {
    const std::vector<CButton*> group = exchange.dialog.RadioGroup(first);
    if (group.empty()) {
        return;
    }
    if (exchange.save) {
        index = -1;
    }
    for (std::size_t i = 0; i < group.size(); ++i) {
        const int here = static_cast<int>(i);
        if (!exchange.save) {
            group[i]->SetCheck(here == index);
        } else if (group[i]->GetCheck()) {
            index = here;
        }
    }
}

void DDX_CBIndex(CDataExchange& exchange, int number, int& index) {
    auto* combo = exchange.dialog.Item<CComboBox>(number);
    if (combo == nullptr) {
        return;
    }
    if (exchange.save) {
        index = combo->GetCurSel();
    } else {
        combo->SetCurSel(index);
    }
}

}  // namespace kvopt

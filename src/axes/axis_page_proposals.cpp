// What the rows show at the start: the stored axes, then defaults, then the not-used name.

#include <set>

#include "kvopt/axes/axis_page.h"
#include "kvopt/platform/controls.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

int AxisPage::SelectString(int axis, const std::string& name) {
    int found = -1;
    if (CComboBox* list = AxisCombo(axis)) {
        // The list finds prefixes, so that a search for Temp may stop at Temp2 and must go on. From
        // any start before what was found it would only find the same again.
        const std::wstring text = KvStdString::ToWide(name);
        int start = 0;
        int index = list->SelectString(start, text);
        while (index > start && list->GetItemText(index) != text) {
            start = index;
            index = list->SelectString(start, text);
        }
        if (index != -1 && list->GetItemText(index) == text) {
            found = index;
        }
    }
    SetDefault(found != -1 ? axis : 1);
    return found;
}

void AxisPage::SetupComboBox() {
    int rows = 0;
    while (rows < NAxis() && AxisCombo(rows + 1) != nullptr) {
        ++rows;
    }
    std::set<int> needy;
    for (int axis = 1; axis <= rows; ++axis) {
        if (!ShowStoredAxis(axis)) {
            needy.insert(axis);
        }
    }
    std::set<std::string> taken;
    for (int axis = 1; axis <= rows; ++axis) {
        if (needy.count(axis) != 0) {
            continue;
        }
        if (AxisCombo(axis)->GetCurSel() == -1) {
            needy.insert(axis);
        } else {
            taken.insert(NameAxis(axis));
        }
    }
    std::erase_if(needy, [&](int axis) { return ProposeDefault(axis, taken); });
    for (const int axis : needy) {
        AddUnusedOption(axis);
        SelectString(axis, AxisInfo::GetNotUsedName());
    }
}

bool AxisPage::ShowStoredAxis(int axis) {
    FillAxisCombo(axis, AxisCombo(axis), nullptr);
    const AxisInfo* info = Axis(axis);
    if (info == nullptr || !info->IsDefined()) {
        return false;
    }
    if (!info->IsUsed()) {
        AddUnusedOption(axis);
    }
    if (SelectString(axis, info->GetName()) == -1) {
        return false;
    }
    if (info->IsUsed() && !investigation_->GetVariables()->IsFactorQualitative(info->GetName())) {
        SetRange(axis, info->GetMin(), info->GetMax());
    }
    return true;
}

bool AxisPage::ProposeDefault(int axis, std::set<std::string>& taken) {
    const CComboBox* list = AxisCombo(axis);
    for (std::size_t i = 1; i < arguments_.defaults->size(); ++i) {
        const AxisInfo* candidate = (*arguments_.defaults)[i].get();
        if (candidate == nullptr) {
            continue;
        }
        const std::string& name = candidate->GetName();
        if (taken.count(name) == 0 && list->FindStringExact(-1, KvStdString::ToWide(name)) != -1) {
            SelectString(axis, name);
            taken.insert(name);
            return true;
        }
    }
    return false;
}

}  // namespace kvopt

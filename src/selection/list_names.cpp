#include "selection/list_names.h"

#include "kvopt/platform/list_box.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

void FillList(CListBox& list, const std::vector<std::string>& names) {
    list.SetRedraw(false);
    list.ResetContent();
    for (const std::string& name : names) {
        list.AddString(KvStdString::ToWide(name));
    }
    list.SetRedraw(true);
}

std::vector<std::string> NamesOf(const CListBox& list) {
    std::vector<std::string> names;
    for (const std::wstring& text : list.Texts()) {
        names.push_back(KvStdString::ToUtf8(text));
    }
    return names;
}

}  // namespace kvopt

#include "kvopt/platform/kv_property_sheet.h"

#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

KvPropertySheet::KvPropertySheet(const wchar_t* caption, CWnd* parent, unsigned startPage)
    : CPropertySheet(caption != nullptr ? caption : L"", parent, startPage) {}

void KvPropertySheet::AddPage(KvPropertyPage* page) {
    CPropertySheet::AddPage(page);
}

}  // namespace kvopt

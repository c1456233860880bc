#include "kvopt/platform/kv_property_sheet.h"

namespace kvopt {

KvPropertySheet::KvPropertySheet(const wchar_t* caption, CWnd* parent, unsigned startPage)
    : CPropertySheet(caption != nullptr ? caption : L"", parent, startPage) {}

}  // namespace kvopt

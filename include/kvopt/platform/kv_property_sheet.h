#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/property_sheet.h"

namespace kvopt {

/// The sheet that holds the library's pages, of either kind.
class KVOPT_EXPORT KvPropertySheet : public CPropertySheet {
public:
    /// `startPage` is the zero-based index of the page to start with.
    KvPropertySheet(const wchar_t* caption, CWnd* parent, unsigned startPage);
};

}  // namespace kvopt

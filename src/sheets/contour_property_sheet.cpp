#include "kvopt/sheets/contour_property_sheet.h"

#include "kvopt/platform/dialog.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {

ContourPropertySheet::ContourPropertySheet(const wchar_t* caption, CWnd* parent, unsigned startPage)
    : KvPropertySheet(caption, parent, startPage) {}

ContourPropertySheet::~ContourPropertySheet() = default;

void ContourPropertySheet::OnOK() {
    Guard([this] { KvPropertySheet::OnOK(); });
}

void ContourPropertySheet::OnApply() {
    Guard([this] { KvPropertySheet::OnApply(); });
}

void ContourPropertySheet::Guard(const std::function<void()>& step) {
    try {
        step();
    } catch (const CancelException&) {
        EndDialog(kResultCancelRequested);
        cancelRequested_ = true;
    }
}

}  // namespace kvopt

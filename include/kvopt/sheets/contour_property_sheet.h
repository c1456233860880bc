#pragma once

#include <functional>

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_sheet.h"

namespace kvopt {

/// The sheet of a plot that exists. A page that throws CancelException while the sheet applies (the
/// kill step that comes first included) abandons the plot: the sheet ends with
/// kResultCancelRequested, and its builder asks IsCancelRequested. Thrown at any other time it
/// leaves the run.
class KVOPT_EXPORT ContourPropertySheet : public KvPropertySheet {
public:
    ContourPropertySheet(const wchar_t* caption, CWnd* parent, unsigned startPage);
    ~ContourPropertySheet() override;

    bool IsCancelRequested() const { return cancelRequested_; }

    void OnOK() override;
    void OnApply() override;

private:
    void Guard(const std::function<void()>& step);

    bool cancelRequested_ = false;
};

}  // namespace kvopt

#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/control.h"

namespace kvopt {

/// Push button, check box or radio button.
class KVOPT_EXPORT CButton : public CControl {
public:
    using CControl::CControl;

    bool GetCheck() const { return checked_; }
    /// Checking a radio button takes the mark off the others of its group.
    void SetCheck(bool checked);

    /// A click: a check box flips, a radio button is checked, then the page's handler runs; also
    /// for a radio button that was checked already.
    bool UserClick();

private:
    bool checked_ = false;
};

}  // namespace kvopt

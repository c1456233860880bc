#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/control.h"

namespace kvopt {

class CEdit;

/// Up and down arrows that write a number into the edit beside them.
class KVOPT_EXPORT CSpinButtonCtrl : public CControl {
public:
    using CControl::CControl;

    /// The bounds may come in either order.
    void SetRange(int low, int high);
    int Low() const { return low_; }
    int High() const { return high_; }
    /// Clamps to the range and writes the buddy edit, which notifies as writing an edit does.
    void SetPos(int position);
    /// What the buddy shows, clamped to the range; the lower bound when it shows no number.
    int GetPos() const;

    /// One click on an arrow: +1 or -1. Nothing is written when the buddy shows the outcome
    /// already.
    bool UserStep(int delta);

private:
    CEdit* Buddy() const;

    int low_ = 0;
    int high_ = 100;
};

}  // namespace kvopt

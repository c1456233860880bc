#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/edit.h"

namespace kvopt {

/// An edit that knows between which bounds its number belongs, for whoever wants to tell the user.
/// It judges nothing: what is typed, pasted or written stands as it is, and the page decides.
class KVOPT_EXPORT KvRangeEdit : public CEdit {
public:
    using CEdit::CEdit;

    void SetRange(double low, double high) {
        low_ = low;
        high_ = high;
    }
    /// Both are 0 until a range was set.
    double Low() const { return low_; }
    double High() const { return high_; }

private:
    double low_ = 0.0;
    double high_ = 0.0;
};

}  // namespace kvopt

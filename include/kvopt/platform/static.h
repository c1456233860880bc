#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/control.h"

namespace kvopt {

/// A text that stands beside other controls.
class KVOPT_EXPORT CStatic : public CControl {
public:
    using CControl::CControl;
};

}  // namespace kvopt

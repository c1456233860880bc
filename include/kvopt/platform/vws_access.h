#pragma once

#include "kvopt/export.h"

namespace kvopt {

/// What a worksheet asks when the user changed a cell.
class KVOPT_EXPORT VWSInterFace_VWSAccess {
public:
    virtual ~VWSInterFace_VWSAccess();
    /// True when the text was taken.
    virtual bool UserChangedData(int column, int row, const char* text) = 0;
};

}  // namespace kvopt

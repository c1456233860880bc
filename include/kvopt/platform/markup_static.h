#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/platform/static.h"

namespace kvopt {

/// A header over the rest of a page.
class KVOPT_EXPORT CXTPMarkupStatic : public CStatic {
public:
    using CStatic::CStatic;

    /// A number that a host may have a picture for; 0 for none.
    unsigned TitleNumber() const { return titleNumber_; }
    void SetTitleNumber(unsigned number) { titleNumber_ = number; }

private:
    unsigned titleNumber_ = 0;
};

}  // namespace kvopt

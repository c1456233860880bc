#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/desktop.h"

namespace kvopt {

/// Shows the wait cursor as long as it lives, then the one from before.
class KVOPT_EXPORT CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

private:
    Cursor before_;
};

}  // namespace kvopt

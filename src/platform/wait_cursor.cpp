#include "kvopt/platform/wait_cursor.h"

namespace kvopt {

CWaitCursor::CWaitCursor() : before_(Desktop::Instance().GetCursor()) {
    Desktop::Instance().SetCursor(Cursor::Wait);
}

CWaitCursor::~CWaitCursor() {
    Desktop::Instance().SetCursor(before_);
}

}  // namespace kvopt

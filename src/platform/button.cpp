#include "kvopt/platform/button.h"

#include "kvopt/platform/dialog.h"

namespace kvopt {

void CButton::SetCheck(bool checked) {
    if (checked && Kind() == ControlKind::Radio) {
        for (CButton* other : Dialog().RadioGroup(Number())) {
            if (other != this) {
                other->SetCheck(false);
            }
        }
    }
    if (checked != checked_) {
        checked_ = checked;
        NotifyViews(WindowChange::Check);
    }
}

bool CButton::UserClick() {
    return Act([this] {
        if (Kind() == ControlKind::Check) {
            SetCheck(!checked_);
        } else if (Kind() == ControlKind::Radio) {
            SetCheck(true);
        }
        Notify(Notification::Clicked);
        return true;
    });
}

}  // namespace kvopt

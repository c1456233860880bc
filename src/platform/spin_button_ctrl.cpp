#include "kvopt/platform/spin_button_ctrl.h"

#include <algorithm>
#include <string>

#include "kvopt/platform/dialog.h"
#include "kvopt/platform/edit.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {

CEdit* CSpinButtonCtrl::Buddy() const {
    return Dialog().Item<CEdit>(Template().buddy);
}

void CSpinButtonCtrl::SetRange(int low, int high) {
    if (low > high) {
        std::swap(low, high);
    }
    if (low != low_ || high != high_) {
        low_ = low;
        high_ = high;
        NotifyViews(WindowChange::Range);
    }
}

void CSpinButtonCtrl::SetPos(int position) {
    if (CEdit* buddy = Buddy()) {
        buddy->SetText(std::to_wstring(std::clamp(position, low_, high_)));
    }
}

int CSpinButtonCtrl::GetPos() const {
    int position = low_;
    if (const CEdit* buddy = Buddy()) {
        KvString::ToInt(buddy->GetText(), position);
    }
    return std::clamp(position, low_, high_);
}

bool CSpinButtonCtrl::UserStep(int delta) {
    return Act([this, delta] {
        const auto next = static_cast<int>(
            std::clamp<long long>(static_cast<long long>(GetPos()) + delta, low_, high_));
        const CEdit* buddy = Buddy();
        if (buddy != nullptr && buddy->GetText() != std::to_wstring(next)) {
            SetPos(next);
        }
        return true;
    });
}

}  // namespace kvopt

#pragma once

/// \file
/// Check boxes that some templates of a page leave out.

#include "kvopt/platform/button.h"
#include "kvopt/platform/dialog.h"

namespace kvopt {

inline void SetCheckIfThere(const CDialog& dialog, int control, bool checked) {
    if (auto* button = dialog.Item<CButton>(control)) {
        button->SetCheck(checked);
    }
}

inline void GetCheckIfThere(const CDialog& dialog, int control, bool& checked) {
    if (const auto* button = dialog.Item<CButton>(control)) {
        checked = button->GetCheck();
    }
}

}  // namespace kvopt

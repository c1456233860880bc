#pragma once

#include "kvopt/platform/dialog_template.h"

namespace kvopt::test {

/// What a person calls a control of the kind.
inline const char* KindName(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
            return "label";
        case ControlKind::Edit:
            return "edit";
        case ControlKind::ComboList:
            return "drop-down list";
        case ControlKind::ComboEdit:
            return "editable drop-down list";
        case ControlKind::ListSingle:
            return "list";
        case ControlKind::ListMulti:
            return "list of several marks";
        case ControlKind::Push:
            return "push button";
        case ControlKind::Check:
            return "check box";
        case ControlKind::Radio:
            return "radio button";
        case ControlKind::Spin:
            return "spin control";
        case ControlKind::Worksheet:
            return "worksheet";
        case ControlKind::PropertyGrid:
            return "property grid";
        case ControlKind::Markup:
            return "markup";
    }
    return "unknown";
}

}  // namespace kvopt::test

#pragma once

#include <string_view>

#include "kvopt/platform/desktop.h"

namespace kvopt {

/// A message box over `owner` with the owner's text as caption: the sheet's for a page, that of the
/// dialog it stands on for a control, none without an owner.
MessageBoxRequest BoxOver(CWnd* owner, std::wstring_view text, BoxStyle style);

}  // namespace kvopt

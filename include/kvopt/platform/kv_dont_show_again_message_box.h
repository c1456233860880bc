#pragma once

#include <string_view>

#include "kvopt/export.h"

namespace kvopt {

class CWnd;

/// An information box with OK and a check that keeps it from coming again. When the user marks the
/// check, that is remembered in the registry, in the area of GetDontShowAgainRegistrySection(), as
/// a value named `key`, and from then on a call with this key shows nothing, whatever the text. A
/// null key throws InvalidArgument.
///
/// Owner and caption are those of ShowMessage.
KVOPT_EXPORT void KvDontShowAgainMessageBox(CWnd* owner, const char* key, std::wstring_view text);

}  // namespace kvopt

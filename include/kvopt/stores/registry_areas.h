#pragma once

#include <string>

#include "kvopt/export.h"

namespace kvopt {

// Where the areas of the application's own key lie in the registry. Paths are those that Registry
// takes: names with a backslash between them.

/// The area that holds which messages are not to be shown again, one value for each.
KVOPT_EXPORT std::wstring GetDontShowAgainRegistrySection();

/// The path of an area of the application's key, such as "WindowPos". A null name throws
/// InvalidArgument; the empty one gives the application's key.
KVOPT_EXPORT std::wstring GetRegistryBaseKeyNameW(const wchar_t* area);
/// The same in UTF-8.
KVOPT_EXPORT std::string GetRegistryBaseKeyName(const char* area);

}  // namespace kvopt

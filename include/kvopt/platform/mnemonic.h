#pragma once

#include <string>
#include <string_view>

#include "kvopt/export.h"

namespace kvopt {

/// The label as it is read: without the "&" before its mnemonic; "&&" is one "&".
KVOPT_EXPORT std::wstring WithoutMnemonic(std::wstring_view label);

/// The character behind the first single "&" as it stands there; 0 without one.
KVOPT_EXPORT wchar_t MnemonicOf(std::wstring_view label);

}  // namespace kvopt

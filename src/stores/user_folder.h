#pragma once

#include <memory>

#include "kvopt/stores/ini_file_section.h"

namespace kvopt {

/// The ini file of this name in "kvopt" inside the user's configuration folder ($XDG_CONFIG_HOME,
/// or ".config" in $HOME), which is made if need be; a store without a file where that cannot be
/// had.
std::unique_ptr<IniFileSection> OpenUserFile(const char* name);

}  // namespace kvopt

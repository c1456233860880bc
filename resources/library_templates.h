#pragma once

#include <vector>

#include "kvopt/platform/dialog_template.h"

namespace kvopt {

/// The dialog templates of all subsystems.
std::vector<DialogTemplate> LibraryTemplates();

}  // namespace kvopt

#pragma once

#include <vector>

#include "kvopt/platform/dialog_template.h"

namespace kvopt {

std::vector<DialogTemplate> DesignSpaceTemplates();

}  // namespace kvopt

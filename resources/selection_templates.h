#pragma once

#include <vector>

#include "kvopt/platform/dialog_template.h"

namespace kvopt {

/// The two lists of MultipleResponsePage with their headings, arrows and Reset.
LayoutItem ResponseLists();

std::vector<DialogTemplate> SelectionTemplates();

}  // namespace kvopt

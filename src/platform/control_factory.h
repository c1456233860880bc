#pragma once

#include <memory>

#include "kvopt/platform/dialog_template.h"

namespace kvopt {

class CControl;
class CDialog;

/// The control model for a control of a template.
std::unique_ptr<CControl> MakeControl(CDialog& dialog, const ControlTemplate& what);

}  // namespace kvopt

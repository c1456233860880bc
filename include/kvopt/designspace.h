#pragma once

/// \file
/// How a design space is simulated and shown.

#include "kvopt/designspace/design_space_interval_page.h"
#include "kvopt/designspace/design_space_page.h"
#include "kvopt/designspace/ds_contour_plot_options_page.h"
#include "kvopt/designspace/risk_presentation_enum.h"

#pragma once

/// \file
/// The argument objects of plots: axes, constants, options, and the stores that remember them.

#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/plotargs/contour_plot_data.h"
#include "kvopt/plotargs/report_override_options.h"
#include "kvopt/plotargs/sweet_spot_data.h"
#include "kvopt/plotargs/wizard_plot_data.h"

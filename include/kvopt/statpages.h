#pragma once

/// \file
/// Small pages that each edit a level or a choice.

#include "kvopt/statpages/confidence_level_page.h"
#include "kvopt/statpages/prediction_level_page.h"
#include "kvopt/statpages/prediction_plot_level_page.h"

#pragma once

/// \file
/// The values of the factors that lie on no axis: the grid that edits them, the choosers that say
/// which factors it leaves out, and the page that holds it.

#include "kvopt/constants/constants_cell_renderer.h"
#include "kvopt/constants/constants_chooser.h"
#include "kvopt/constants/constants_page.h"
#include "kvopt/constants/contour_constants_chooser.h"
#include "kvopt/constants/contour_constants_chooser2.h"
#include "kvopt/constants/kivex_list_interface.h"
#include "kvopt/constants/predicted_constants_chooser.h"
#include "kvopt/constants/predicted_constants_chooser2.h"
#include "kvopt/constants/vws_constant_interface.h"

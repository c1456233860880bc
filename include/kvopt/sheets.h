#pragma once

/// \file
/// The functions that assemble pages around an argument object and run them.

#include "kvopt/sheets/contour_page.h"
#include "kvopt/sheets/contour_plot_options_page.h"
#include "kvopt/sheets/contour_property_sheet.h"
#include "kvopt/sheets/contour_sheet.h"
#include "kvopt/sheets/contour_wizard.h"

#pragma once

/// \file
/// Which factors may lie on which axis, with which ranges: the filters, the lists they fill, the
/// pages that edit axes, and the helpers that choose axes without a page.

#include "kvopt/axes/axis_helper.h"
#include "kvopt/axes/axis_page.h"
#include "kvopt/axes/axis_rules.h"
#include "kvopt/axes/axis_type.h"
#include "kvopt/axes/contour_2d_axis_page.h"
#include "kvopt/axes/contour_4d_axis_helper.h"
#include "kvopt/axes/contour_4d_axis_page.h"
#include "kvopt/axes/contour_axis_helper.h"
#include "kvopt/axes/fill_box.h"
#include "kvopt/axes/mixture_2d_axis_helper.h"
#include "kvopt/axes/mixture_4d_axis_helper.h"
#include "kvopt/axes/mixture_4d_axis_page.h"
#include "kvopt/axes/mixture_axis_page.h"
#include "kvopt/axes/probability_contour_axis_helper.h"
#include "kvopt/axes/sweet_spot_4d_axis_helper.h"
#include "kvopt/axes/sweet_spot_axis_helper.h"
#include "kvopt/axes/use_factor.h"

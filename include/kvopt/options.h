#pragma once

/// \file
/// The bases of option pages: pages with a property grid.

#include "kvopt/options/grid_page.h"
#include "kvopt/options/kv_xtp_options_page_base.h"
#include "kvopt/options/kv_xtp_property_page.h"
#include "kvopt/options/options_page_base.h"
